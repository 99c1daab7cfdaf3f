#pragma once

#include <QWidget>

#include "app/AppTheme.h"
#include "ui/pictures/WindowSymbol.h"

namespace kinesta {

/// A symbol in a colour of the theme, beside words. Its name gives screen readers its meaning.
class SymbolMark final : public QWidget {
    Q_OBJECT

  public:
    using Ink = Rgb AppTheme::*;

    /// `side` in units.
    explicit SymbolMark(double side, QWidget* parent = nullptr);

    void setSymbol(WindowSymbol symbol, Ink ink, const QString& name);
    /// Puts the symbol on a disc.
    void setDisc(Ink ink);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double m_side;
    WindowSymbol m_symbol = WindowSymbol::information;
    Ink m_ink = &AppTheme::text2;
    Ink m_disc = nullptr;
};

}  // namespace kinesta
