#include "ui/overview/OverviewPage.h"

#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Desktop.h"
#include "ui/widgets/Unit.h"

namespace kinesta {

OverviewPage::OverviewPage(OverviewModel& model, const WindowParts& parts, WindowCommands& commands)
    : m_model(model),
      m_worksHere({.store = parts.store,
                   .service = parts.service,
                   .report = parts.report,
                   .clock = parts.desktop.clock(),
                   .isPermissionMissing = parts.isPermissionMissing}),
      m_hero(new HeroCard(parts, commands)),
      m_steps(new QWidget),
      m_stepsCard(new WelcomeSteps(parts, commands)),
      m_findings(new FindingList(m_worksHere, parts, commands)) {
    add(m_hero);
    auto* steps = new QVBoxLayout(m_steps);
    steps->setContentsMargins(0, Unit::of(20), 0, 0);
    steps->setSpacing(Unit::of(8));
    steps->addWidget(new Words(tr("Three steps"), Words::Size::section));
    steps->addWidget(m_stepsCard);
    add(m_steps);
    auto* copy = new QPushButton(tr("Copy report"));
    copy->setProperty("link", true);
    connect(copy, &QPushButton::clicked, this, [&commands] { commands.copyReport(); });
    addHeading(tr("What works here"), copy);
    add(m_findings);
    m_observers.push_back(m_model.content().observe([this](const auto&) { update(); }));
    m_observers.push_back(m_worksHere.content().observe([this](const auto&) { update(); }));
    update();
}

void OverviewPage::update() {
    const OverviewContent& content = m_model.content().value();
    const bool isWelcome = content.state == OverviewContent::State::firstLaunch;
    m_hero->show(content);
    m_steps->setVisible(isWelcome);
    m_findings->setWithoutTouchpad(isWelcome);
    if (isWelcome)
        m_stepsCard->show(content, m_worksHere.content().value());
}

bool OverviewPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        m_worksHere.cameToFront();
    return Page::eventFilter(watched, event);
}

void OverviewPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    window()->installEventFilter(this);
    m_worksHere.setShown(true);
    if (!event->spontaneous() && m_model.content().value().state == OverviewContent::State::firstLaunch)
        m_hero->performWelcome();
}

void OverviewPage::hideEvent(QHideEvent* event) {
    Page::hideEvent(event);
    window()->removeEventFilter(this);
    m_worksHere.setShown(false);
}

}  // namespace kinesta
