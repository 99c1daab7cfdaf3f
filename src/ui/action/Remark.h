#pragma once

#include <QWidget>

#include "ui/widgets/Words.h"

namespace kinesta {

/// A sentence with a mark before it: what is wrong with the field above it, or still missing. Hidden while it is empty.
class Remark final : public QWidget {
    Q_OBJECT

  public:
    enum class Kind { caution, error };

    explicit Remark(Kind kind, QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return m_words->text(); }

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void measure();

    Kind m_kind;
    Words* m_words;
};

}  // namespace kinesta
