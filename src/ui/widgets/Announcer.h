#pragma once

#include <QStringList>
#include <QWidget>

namespace kinesta {

/// Speaks for a window to screen readers. It is never seen.
class Announcer final : public QWidget {
    Q_OBJECT

  public:
    /// Has screen readers say a text wherever the focus is, such as when `speaker` appears by itself. Texts of the same
    /// moment are said together.
    static void announce(const QWidget& speaker, const QString& text);

  private:
    explicit Announcer(QWidget* window);

    void add(const QString& text);
    void speak();

    QStringList m_texts;
};

}  // namespace kinesta
