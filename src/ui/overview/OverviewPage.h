#pragma once

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/OverviewModel.h"
#include "ui/models/WorksHereModel.h"
#include "ui/overview/FindingList.h"
#include "ui/overview/HeroCard.h"
#include "ui/overview/WelcomeSteps.h"
#include "ui/widgets/Page.h"

namespace kinesta {

/// Whether gestures are recognized, the last one, and what works on this machine.
class OverviewPage final : public Page {
    Q_OBJECT

  public:
    /// All must outlive this.
    OverviewPage(OverviewModel& model, const WindowParts& parts, WindowCommands& commands);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void update();

    OverviewModel& m_model;
    WorksHereModel m_worksHere;
    HeroCard* m_hero;
    QWidget* m_steps;
    WelcomeSteps* m_stepsCard;
    FindingList* m_findings;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
