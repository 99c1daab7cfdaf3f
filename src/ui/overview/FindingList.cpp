#include "ui/overview/FindingList.h"

#include <QPushButton>
#include <algorithm>
#include <utility>

#include "ui/overview/CommandToCopy.h"
#include "ui/overview/SymbolMark.h"
#include "ui/overview/Tag.h"

namespace kinesta {
namespace {

using Mark = FindingRow::Mark;
using State = WorksHereContent::State;

constexpr double kSymbol = 18;
constexpr double kRowHeight = 52;

QString asQString(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

FindingList::FindingList(WorksHereModel& model, const WindowParts& parts, WindowCommands& commands, QWidget* parent)
    : Card(parent), m_model(model), m_parts(parts), m_commands(commands) {
    m_observer = m_model.content().observe([this](const WorksHereContent&) { rebuild(); });
    rebuild();
}

void FindingList::setWithoutTouchpad(bool isWithout) {
    if (std::exchange(m_isWithoutTouchpad, isWithout) != isWithout)
        rebuild();
}

void FindingList::rebuild() {
    for (QWidget* row : std::exchange(m_rows, {})) {
        row->hide();
        row->deleteLater();
    }
    const WorksHereContent& content = m_model.content().value();
    const auto isShown = [&](const FindingRow& row) {
        return !m_isWithoutTouchpad || row.subject != FindingSubject::touchpad;
    };
    const auto isMissing = [&](const FindingRow& row) { return isShown(row) && row.mark == Mark::missing; };
    if (content.state == State::looking) {
        m_rows.push_back(sentence(Mark::absent, tr("Looking…"), {}));
    } else if (content.state == State::failed) {
        m_rows.push_back(
            sentence(Mark::missing, tr("What works here could not be found out"), asQString(content.problem)));
    } else if (!content.isDetailed && std::ranges::none_of(content.rows, isMissing)) {
        MarkedRow* row = sentence(Mark::works, tr("Everything your rules need works here."), {});
        auto* details = new QPushButton(tr("Details"));
        details->setProperty("link", true);
        connect(details, &QPushButton::clicked, this, [this] { m_model.showDetails(); });
        row->setAtEnd(details);
        m_rows.push_back(row);
    } else {
        for (const FindingRow& finding : content.rows)
            if (isShown(finding))
                m_rows.push_back(rowOf(finding));
    }
    for (QWidget* row : m_rows)
        add(row);
}

MarkedRow* FindingList::sentence(Mark mark, const QString& what, const QString& why) {
    auto* symbol = new SymbolMark(kSymbol);
    if (mark == Mark::works)
        symbol->setSymbol(WindowSymbol::works, &AppTheme::positive, tr("Works"));
    else if (mark == Mark::missing)
        symbol->setSymbol(WindowSymbol::caution, &AppTheme::caution, tr("Missing"));
    else
        symbol->setSymbol(WindowSymbol::fails, &AppTheme::text2, tr("Does not work, and no rule needs it"));
    auto* row = new MarkedRow(symbol, kRowHeight);
    row->setWords(what, why);
    return row;
}

MarkedRow* FindingList::rowOf(const FindingRow& finding) {
    MarkedRow* row = sentence(finding.mark, asQString(finding.what), {});
    row->setWords(asQString(finding.what), asQString(finding.why), asQString(finding.remedy));
    if (!finding.command.empty())
        row->addBelow(new CommandToCopy(asQString(finding.command), m_commands));
    if (QWidget* atEnd = atEndOf(finding))
        row->setAtEnd(atEnd);
    return row;
}

QWidget* FindingList::atEndOf(const FindingRow& finding) {
    using Button = FindingRow::Button;
    QPushButton* button = nullptr;
    if (finding.button == Button::allow) {
        button = new QPushButton(tr("Allow…"));
        connect(button, &QPushButton::clicked, this, [this] { m_parts.requestAccessibilityPermission(); });
    } else if (finding.button == Button::openSettings) {
        button = new QPushButton(tr("Open Settings"));
        connect(button, &QPushButton::clicked, this, [this] { m_commands.select(WindowSelection::settings()); });
    } else if (finding.button == Button::showRule && finding.rule) {
        button = new QPushButton(tr("Show rule"));
        button->setProperty("link", true);
        connect(button, &QPushButton::clicked, this,
                [this, rule = *finding.rule] { m_commands.select(WindowSelection::rule(rule)); });
    }
    auto* tag = finding.tag.empty() ? nullptr : new Tag(asQString(finding.tag));
    if (button == nullptr || tag == nullptr)
        return button != nullptr ? static_cast<QWidget*>(button) : tag;
    auto* both = new QWidget;
    auto* column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tag, 0, Qt::AlignTrailing);
    column->addWidget(button, 0, Qt::AlignTrailing);
    return both;
}

}  // namespace kinesta
