#pragma once

#include <QLineEdit>

namespace kinesta {

/// A line of text that is saved after each keystroke and follows what is stored, but never while it is being typed in.
class TextField final : public QLineEdit {
    Q_OBJECT

  public:
    /// `code` is a path, an address or an argument: it runs from left to right in every language.
    enum class Form { words, code };

    TextField(const QString& name, Form form, QWidget* parent = nullptr);

    void follow(const QString& stored);
    QSize sizeHint() const override;

  Q_SIGNALS:
    /// The person changed the text.
    void typed(const QString& text);
    /// The focus went elsewhere.
    void left();

  protected:
    void focusOutEvent(QFocusEvent* event) override;

  private:
    QString m_stored;
};

}  // namespace kinesta
