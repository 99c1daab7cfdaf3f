#pragma once

#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>
#include <vector>

#include "ui/editor/PickerView.h"
#include "ui/models/RuleEditorModel.h"
#include "ui/widgets/Words.h"

namespace kinesta {

/// What stands beside the stage: title and sentence of the gesture, its pickers, and the button that waits for one.
class GestureDetails final : public QWidget {
    Q_OBJECT

  public:
    /// The model must outlive this.
    explicit GestureDetails(RuleEditorModel& model);

    void show(const RuleEditorContent& content);
    /// Whether gestures are recognized, so that one can be waited for.
    void setListening(bool isListening);

  Q_SIGNALS:
    /// A choice is pointed at; the rule would look like this.
    void pointedAt(const kinesta::GestureRule& rule);
    void pointedAway();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void measure();

    RuleEditorModel& m_model;
    QVBoxLayout* m_column;
    Words* m_title;
    Words* m_sentence;
    std::vector<PickerView*> m_pickers;
    QPushButton* m_perform;
};

}  // namespace kinesta
