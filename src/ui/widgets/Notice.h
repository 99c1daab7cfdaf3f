#pragma once

#include <QBoxLayout>
#include <QVariantAnimation>
#include <QWidget>

#include "app/AppTheme.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/Words.h"

namespace kinesta {

/// A sentence about something wrong or worth knowing, at the end of a card. Screen readers say it when it appears on
/// a page that is seen, or changes.
class Notice final : public QWidget {
    Q_OBJECT

  public:
    enum class Kind { plain, caution, error };

    Notice(Kind kind, const QString& title, const QString& detail, QWidget* parent = nullptr);

    void setKind(Kind kind);
    void setSymbol(WindowSymbol symbol);
    void setWords(const QString& title, const QString& detail);
    /// A button or link at the end; below the words when it would leave them too little room.
    void setControl(QWidget* control);
    /// Shows it, growing from nothing if its card is seen already.
    void slideIn();
    QColor ground(const AppTheme& theme) const;
    void setVisible(bool isVisible) override;

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void measure();
    void place();
    void grow(double part);
    void announce();

    Kind m_kind;
    WindowSymbol m_symbol;
    Words* m_title;
    Words* m_detail;
    QBoxLayout* m_line;
    QWidget* m_control = nullptr;
    QVariantAnimation m_motion;
};

}  // namespace kinesta
