#pragma once

#include <QListWidget>
#include <QStringList>

namespace kinesta {

/// Arguments in their order, to type in, to drag and to remove. Follows what is stored, but never while it is being
/// typed in.
class ArgumentList final : public QListWidget {
    Q_OBJECT

  public:
    explicit ArgumentList(const QString& name, QWidget* parent = nullptr);

    void follow(const QStringList& stored);
    /// Adds an empty argument and begins to type in it.
    void addOne();
    void addAll(const QStringList& arguments);
    /// The widget that is shown and hidden with the list: there is none without arguments.
    void followWith(QWidget* frame);

  Q_SIGNALS:
    /// A keystroke in one of them.
    void typed(const QStringList& all);
    /// One was added, moved or removed.
    void arranged(const QStringList& all);
    /// An argument is no longer typed in.
    void left();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

  private:
    QStringList all() const;
    void show(const QStringList& arguments);
    QListWidgetItem* append(const QString& text);
    void move(int from, int to);
    void remove(int row);
    void fitHeight();

    QWidget* m_frame = nullptr;
    QStringList m_stored;
    bool m_isChanging = false;
};

}  // namespace kinesta
