#include "ui/overview/WelcomeSteps.h"

#include <algorithm>
#include <utility>

#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"

namespace kinesta {
namespace {

constexpr double kHeight = 52;

}  // namespace

WelcomeSteps::WelcomeSteps(const WindowParts& parts, WindowCommands& commands, QWidget* parent)
    : Card(parent),
      m_commands(commands),
      m_read(new MarkedRow(m_numbers[0], kHeight)),
      m_allow(new QPushButton(tr("Allow…"))),
      m_try(new QPushButton(tr("Try a gesture"))) {
    add(m_read);
    m_read->setAtEnd(m_allow);
    connect(m_allow, &QPushButton::clicked, this, [&parts] { parts.requestAccessibilityPermission(); });

    auto* tryOne = new MarkedRow(m_numbers[1], kHeight);
    tryOne->setWords(tr("Try a gesture"), tr("See your fingers on the pad. Nothing runs while you try."));
    m_try->setProperty("primary", true);
    tryOne->setAtEnd(m_try);
    add(tryOne);
    connect(m_try, &QPushButton::clicked, this, [this] { m_commands.tryGesture(); });

    auto* own = new MarkedRow(m_numbers[2], kHeight);
    own->setWords(tr("Add a gesture of your own"), tr("Choose a picture, then what it does."));
    auto* addOne = new QPushButton(SymbolIcon::of(windowSymbol(WindowSymbol::add)), tr("Add a gesture"));
    own->setAtEnd(addOne);
    add(own);
    connect(addOne, &QPushButton::clicked, this, [this] { m_commands.addRule(); });
}

void WelcomeSteps::show(const OverviewContent& overview, const WorksHereContent& worksHere) {
    const auto touchpad = std::ranges::find(worksHere.rows, FindingSubject::touchpad, &FindingRow::subject);
    const bool isListening = overview.isListening;
    const bool isAllowed = !overview.isPermissionMissing;
    delete std::exchange(m_command, nullptr);
    if (isListening && isAllowed)
        m_read->setWords(tr("Kinesta reads the touchpad"), tr("What your fingers do stays on this computer."));
    else if (isListening)
        m_read->setWords(tr("Allow Kinesta to send keys and clicks"), tr("Rules press keys and click for you."));
    else if (touchpad != worksHere.rows.end())
        showReading(*touchpad);
    else
        m_read->setWords(tr("Let Kinesta read the touchpad"), QString::fromStdString(overview.statusLine));
    m_allow->setVisible(isListening && !isAllowed);
    using State = StepNumber::State;
    m_numbers[0]->setState(isListening && isAllowed ? State::done : State::now);
    m_numbers[1]->setState(isListening && isAllowed ? State::now : State::later);
    m_try->setEnabled(isListening);
}

void WelcomeSteps::showReading(const FindingRow& touchpad) {
    const QString why = QString::fromStdString(touchpad.why);
    const QString remedy = QString::fromStdString(touchpad.remedy);
    if (touchpad.command.empty())
        return m_read->setWords(tr("Let Kinesta read the touchpad"), why, remedy);
    m_read->setWords(tr("Let Kinesta read the touchpad"), remedy);
    m_command = new TerminalCommand(QString::fromStdString(touchpad.command), m_commands);
    m_read->addBelow(m_command);
}

}  // namespace kinesta
