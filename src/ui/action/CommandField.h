#pragma once

#include <QPlainTextEdit>

namespace kinesta {

/// A shell command of several lines, saved after each keystroke. Follows what is stored, but never while it is being
/// typed in.
class CommandField final : public QPlainTextEdit {
    Q_OBJECT

  public:
    /// A program gets no longer argument on Linux, in bytes.
    static constexpr qsizetype longest = 131'071;

    explicit CommandField(const QString& name, QWidget* parent = nullptr);

    void follow(const QString& stored);

  Q_SIGNALS:
    /// The person changed the text.
    void typed(const QString& text);
    /// The focus went elsewhere.
    void left();
    /// What was pasted is too long to be a command, so it was left out.
    void refused();

  protected:
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    void fitHeight();
    void show(const QString& text);

    QString m_stored;
    bool m_isFollowing = false;
};

}  // namespace kinesta
