#pragma once

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/RuleEditorModel.h"
#include "ui/models/RuleListModel.h"
#include "ui/widgets/Page.h"

namespace kinesta {

class RuleHeader;

/// The editor of one rule: its name and switch, its gesture, its action.
class RuleEditorPage final : public Page {
    Q_OBJECT

  public:
    /// The rule must exist. All must outlive this.
    RuleEditorPage(const Uuid& rule, RuleListModel& list, RuleHistory& history, const WindowParts& parts,
                   WindowCommands& commands);
    ~RuleEditorPage() override;

    /// Puts the cursor into the name.
    void focusName();
    /// Takes every recognized gesture.
    void gestureRecognized(const DetectedGesture& gesture) { m_model.gestureRecognized(gesture); }
    /// No gesture becomes that of the rule any more.
    void stopWaiting() { m_model.setWaitsForGesture(false); }
    void setBackButton(QWidget* button) override;

  protected:
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    RuleEditorModel m_model;
    RuleHeader* m_header;
};

}  // namespace kinesta
