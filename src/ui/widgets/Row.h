#pragma once

#include <QBoxLayout>
#include <QWidget>

#include "ui/widgets/Words.h"

namespace kinesta {

/// One line of a card: a title with a second line, and a control at the end. The control moves below the words when it
/// would leave them too little room.
class Row final : public QWidget {
    Q_OBJECT

  public:
    explicit Row(const QString& title, const QString& detail = {}, QWidget* parent = nullptr);

    /// Takes the control in. Screen readers and the title's mnemonic find it by the title.
    void setControl(QWidget* control);
    /// A wide control always stands below the words.
    void setWideControl(QWidget* control);
    void setDetail(const QString& detail);
    Words& title() { return *m_title; }
    Words& detail() { return *m_detail; }

    /// From the edge of the card to the words.
    static int inset();

  protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void measure();
    void place();

    Words* m_title;
    Words* m_detail;
    QBoxLayout* m_line;
    QWidget* m_control = nullptr;
    bool m_isWide = false;
};

}  // namespace kinesta
