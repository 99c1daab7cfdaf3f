#pragma once

#include <QAbstractButton>
#include <QTimer>
#include <QWidget>
#include <optional>
#include <vector>

namespace kinesta {

/// One choice among buttons, as a named group of radio buttons: one stop of the Tab key, and arrows, Home, End and
/// first letters choose.
class ChoiceGroup : public QWidget {
    Q_OBJECT

  public:
    std::optional<int> chosen() const { return m_chosen; }
    /// Shows a choice, or none, without a signal.
    void setChosen(std::optional<int> value);

  Q_SIGNALS:
    /// The person chose it.
    void chose(int value);
    /// The pointer or the focus rests on a choice.
    void pointedAt(int value);
    /// It rests on none any more.
    void pointedAway();

  protected:
    ChoiceGroup(const QString& name, QWidget* parent);

    /// Takes the button in; the caller lays it out.
    void add(int value, QAbstractButton* button);
    const std::vector<QAbstractButton*>& buttons() const { return m_buttons; }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool takeKey(std::size_t from, const QKeyEvent& event);
    std::optional<std::size_t> next(std::size_t from, int key) const;
    void choose(std::size_t index);
    void keepOneTabStop();

    std::vector<QAbstractButton*> m_buttons;
    std::vector<int> m_values;
    std::optional<int> m_chosen;
    std::optional<std::size_t> m_pointed;
    QTimer m_pointing;
};

}  // namespace kinesta
