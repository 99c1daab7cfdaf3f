#include "ui/editor/NoticeStack.h"

#include <algorithm>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

using Topic = RuleEditorNotice::Topic;

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
    : QObject(&card), m_model(model), m_commands(commands) {
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
}

void NoticeStack::show(const RuleEditorContent& content, bool canTellPressure) {
    const std::vector<RuleEditorNotice> notices = noticesOf(content, canTellPressure);
    for (const RuleEditorNotice& notice : notices)
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
    for (auto& [topic, entry] : m_entries) {
        const bool isShown = std::ranges::count(notices, topic, &RuleEditorNotice::topic) > 0;
        if (isShown && entry.notice->isHidden())
            entry.notice->slideIn();
        else if (!isShown)
            entry.notice->hide();
    }
}

}  // namespace kinesta
