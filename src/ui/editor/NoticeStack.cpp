#include "ui/editor/NoticeStack.h"

#include <QHBoxLayout>
#include <algorithm>

#include "ui/widgets/Row.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

using Topic = RuleEditorNotice::Topic;

constexpr std::size_t kMost = 3;
constexpr double kLongestName = 160;

Notice::Kind kindOf(Topic topic) { return topic == Topic::pressure ? Notice::Kind::plain : Notice::Kind::caution; }

/// A name on a button: a long one is cut, and its & is no mnemonic.
QString onButton(const QPushButton& button, const std::string& name) {
    QString text =
        button.fontMetrics().elidedText(QString::fromStdString(name), Qt::ElideRight, Unit::of(kLongestName));
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace

NoticeStack::NoticeStack(Card& card, RuleEditorModel& model, WindowCommands& commands)
    : QObject(&card), m_model(model), m_commands(commands), m_moreLine(new QWidget), m_more(new QPushButton) {
    for (const Topic topic : {Topic::clash, Topic::switchedOff, Topic::systemGesture, Topic::pressure}) {
        Entry& added = m_entries[topic];
        added.notice = new Notice(kindOf(topic), {}, {});
        added.notice->hide();
        if (topic == Topic::clash || topic == Topic::switchedOff) {
            added.remedy = new QPushButton;
            added.notice->setControl(added.remedy);
        }
        card.add(added.notice);
    }
    entry(Topic::clash).notice->setSymbol(WindowSymbol::clash);
    entry(Topic::switchedOff).remedy->setText(tr("Turn on"));
    connect(entry(Topic::clash).remedy, &QPushButton::clicked, this, [this] {
        const auto rivals = m_model.content().value().rivals;
        if (!rivals.empty())
            m_commands.select(WindowSelection::rule(rivals.front().id));
    });
    connect(entry(Topic::switchedOff).remedy, &QPushButton::clicked, this, [this] { m_model.setEnabled(true); });

    auto* line = new QHBoxLayout(m_moreLine);
    line->setContentsMargins(Row::inset(), Unit::of(4), Row::inset(), Unit::of(4));
    line->addWidget(m_more);
    line->addStretch(1);
    m_more->setProperty("link", true);
    m_moreLine->hide();
    card.add(m_moreLine);
    connect(m_more, &QPushButton::clicked, this, [this] {
        m_showsAll = true;
        arrange();
    });
}

void NoticeStack::show(const RuleEditorContent& content, bool canTellPressure) {
    m_notices = noticesOf(content, canTellPressure);
    for (const RuleEditorNotice& notice : m_notices)
        entry(notice.topic)
            .notice->setWords(QString::fromStdString(notice.title), QString::fromStdString(notice.detail));
    Entry& switchedOff = entry(Topic::switchedOff);
    switchedOff.notice->setKind(content.canTurnOn ? Notice::Kind::plain : Notice::Kind::caution);
    switchedOff.remedy->setVisible(content.canTurnOn);
    if (!content.rivals.empty()) {
        QPushButton& rival = *entry(Topic::clash).remedy;
        rival.setText(tr("Show “%1”").arg(onButton(rival, content.rivals.front().name)));
        rival.setToolTip(QString::fromStdString(content.rivals.front().name));
    }
    if (m_notices.size() <= kMost)
        m_showsAll = false;
    arrange();
}

void NoticeStack::arrange() {
    const std::size_t shown = m_showsAll ? m_notices.size() : std::min(kMost, m_notices.size());
    for (auto& [topic, entry] : m_entries) {
        const auto end = m_notices.begin() + static_cast<std::ptrdiff_t>(shown);
        const bool isShown =
            std::any_of(m_notices.begin(), end, [topic = topic](const auto& n) { return n.topic == topic; });
        if (isShown && entry.notice->isHidden())
            entry.notice->slideIn();
        else if (!isShown)
            entry.notice->hide();
    }
    m_more->setText(tr("Show %n more", nullptr, static_cast<int>(m_notices.size() - shown)));
    m_moreLine->setVisible(shown < m_notices.size());
}

}  // namespace kinesta
