#pragma once

#include <QBoxLayout>
#include <QWidget>

#include "ui/widgets/Words.h"

namespace kinesta {

/// A row with a mark before its words: what, why, and what to do. What stands at its end moves below the words when it
/// would leave them too little room.
class MarkedRow final : public QWidget {
    Q_OBJECT

  public:
    /// `height` in units is the least.
    MarkedRow(QWidget* mark, double height, QWidget* parent = nullptr);

    void setWords(const QString& what, const QString& why, const QString& remedy = {});
    /// A wide part below the words.
    void addBelow(QWidget* part);
    void setAtEnd(QWidget* part);

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void measure();
    void place();
    void moveEnd(bool isBelow);

    double m_height;
    QWidget* m_mark;
    Words* m_what;
    Words* m_why;
    Words* m_remedy;
    QBoxLayout* m_line;
    QBoxLayout* m_words;
    QWidget* m_atEnd = nullptr;
    bool m_hasBelow = false;
    bool m_isEndBelow = false;
};

}  // namespace kinesta
