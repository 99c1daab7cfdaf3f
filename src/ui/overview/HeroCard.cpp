#include "ui/overview/HeroCard.h"

#include <QEvent>
#include <algorithm>
#include <utility>

#include "recognition/MultitouchService.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/Row.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

/// Widths of the card in units.
constexpr double kWide = 600;
constexpr double kNarrow = 440;
constexpr std::size_t kMostNotices = 3;

QString asQString(const std::string& text) { return QString::fromStdString(text); }

/// A first sentence stands as the title.
std::pair<QString, QString> titleAndDetail(const QString& text) {
    const auto end = text.indexOf(QStringLiteral(". "));
    return end < 0 ? std::pair(text, QString()) : std::pair(text.left(end + 1), text.mid(end + 2));
}

}  // namespace

HeroCard::HeroCard(const WindowParts& parts, WindowCommands& commands, QWidget* parent)
    : Card(parent),
      m_parts(parts),
      m_commands(commands),
      m_stage(new HeroStage),
      m_headline(new Words({}, Words::Size::headline)),
      m_welcome(new Words({}, Words::Size::body)),
      m_status(new Words({}, Words::Size::body)),
      m_switch(new Switch(tr("Gesture recognition"))),
      m_switchName(new Words(tr("Gesture recognition"), Words::Size::rowTitle)),
      m_try(new QPushButton(tr("Try a gesture"))),
      m_ring(new CountdownRing),
      m_last(new MarkedRow(m_ring, 56)),
      m_lastLink(new QPushButton),
      m_moreNotices(new QPushButton),
      m_moreLine(new QWidget) {
    m_status->setForegroundRole(QPalette::PlaceholderText);
    m_try->setProperty("primary", true);
    m_lastLink->setProperty("link", true);
    m_moreNotices->setProperty("link", true);
    m_last->setAtEnd(m_lastLink);
    m_last->setProperty(kInsetLine, false);
    auto* more = new QHBoxLayout(m_moreLine);
    more->addWidget(m_moreNotices);
    more->addStretch();
    add(makeTop());
    add(m_last);
    add(m_moreLine);
    connect(m_stage, &HeroStage::playPressed, this, &HeroCard::performWelcome);
    connect(m_switch, &Switch::clicked, this, [this](bool isOn) { m_parts.service.setGestureEnabled(isOn); });
    connect(m_try, &QPushButton::clicked, this, [this] { m_commands.tryGesture(); });
    connect(m_lastLink, &QPushButton::clicked, this, [this] {
        if (!m_content.lastGesture)
            return;
        if (const auto rule = m_content.lastGesture->rule)
            m_commands.select(WindowSelection::rule(*rule));
        else
            m_commands.addRuleForLastGesture();
    });
    connect(m_moreNotices, &QPushButton::clicked, this, [this] {
        m_showsAllNotices = true;
        showNotices();
    });
    showLastGesture();
    showNotices();
    measure();
}

QWidget* HeroCard::makeTop() {
    auto* top = new QWidget;
    m_top = new QHBoxLayout(top);
    m_words = new QVBoxLayout;
    m_switchLine = new QHBoxLayout;
    m_switchLine->addWidget(m_switch);
    m_switchLine->addWidget(m_switchName, 1);
    m_switchName->setBuddy(m_switch);
    m_lines = new QVBoxLayout;
    for (QWidget* words : {m_headline, m_welcome, m_status})
        m_lines->addWidget(words);
    m_tryLine = new QHBoxLayout;
    m_tryLine->addWidget(m_try);
    m_tryLine->addStretch();
    m_words->addLayout(m_lines);
    m_words->addLayout(m_switchLine);
    m_words->addStretch(1);
    m_words->addLayout(m_tryLine);
    m_top->addWidget(m_stage);
    m_top->addLayout(m_words, 1);
    return top;
}

void HeroCard::show(const OverviewContent& content) {
    const bool hasOtherNotices = content.notices != m_content.notices;
    const bool hasOtherGesture = (content.lastGesture ? content.lastGesture->text : "") !=
                                 (m_content.lastGesture ? m_content.lastGesture->text : "");
    m_content = content;
    m_headline->setText(asQString(content.headline));
    m_welcome->setText(asQString(content.welcome));
    m_welcome->setVisible(!content.welcome.empty());
    m_status->setText(asQString(content.statusLine));
    // The steps of the welcome have that button.
    m_try->setVisible(content.state != OverviewContent::State::firstLaunch);
    m_switch->setChecked(content.isGestureEnabled);
    m_stage->show(content);
    showLastGesture();
    if (hasOtherGesture && content.lastGesture && isVisible())
        Announcer::announce(*this, m_last->accessibleName());
    if (hasOtherNotices)
        showNotices();
}

void HeroCard::showLastGesture() {
    const std::optional<LastGesture>& last = m_content.lastGesture;
    m_lastLink->setVisible(last.has_value());
    if (!last) {
        m_ring->setSeconds({});
        m_last->setWords(asQString(m_content.invitation), {});
        m_last->setAccessibleName({});
        return;
    }
    m_ring->setSeconds(last->secondsLeft);
    m_last->setWords(asQString(last->text), asQString(last->outcome));
    m_last->setAccessibleName(asQString(last->text + ". " + last->outcome));
    m_lastLink->setText(last->rule ? tr("Show rule") : tr("Make a rule"));
}

void HeroCard::showNotices() {
    for (Notice* notice : std::exchange(m_notices, {})) {
        notice->hide();
        notice->deleteLater();
    }
    const std::size_t count =
        m_showsAllNotices ? m_content.notices.size() : std::min(m_content.notices.size(), kMostNotices);
    for (std::size_t i = 0; i < count; ++i) {
        const OverviewNotice& shown = m_content.notices[i];
        const auto [title, detail] = titleAndDetail(asQString(shown.text));
        const auto kind = shown.kind == OverviewNotice::Kind::problem ? Notice::Kind::caution : Notice::Kind::plain;
        m_notices.push_back(new Notice(kind, title, detail));
        insert(indexOf(m_moreLine), m_notices.back());
    }
    const auto hidden = static_cast<int>(m_content.notices.size() - count);
    m_moreLine->setVisible(hidden > 0);
    m_moreNotices->setText(tr("Show %n more", nullptr, hidden));
}

void HeroCard::performWelcome() { m_stage->perform(m_parts.service.tapWaitingInterval().value().seconds()); }

void HeroCard::changeEvent(QEvent* event) {
    Card::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        measure();
}

void HeroCard::resizeEvent(QResizeEvent* event) {
    Card::resizeEvent(event);
    measure();
}

void HeroCard::measure() {
    const bool isAbove = width() < Unit::of(kNarrow);
    const auto size = isAbove                         ? HeroStage::Size::above
                      : width() < Unit::of(kWide) - 4 ? HeroStage::Size::besideSmall
                                                      : HeroStage::Size::beside;
    m_stage->setSize(size);
    m_top->setDirection(isAbove ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_top->setContentsMargins(0, 0, 0, 0);
    m_top->setSpacing(0);
    const int side = Unit::of(isAbove ? 16 : 24);
    // The switch begins where the words do; the room for its ring stands out.
    const int room = FocusRing::room();
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const auto indent = [isMirrored](QLayout* part, int by, int above, int below) {
        part->setContentsMargins(isMirrored ? 0 : by, above, isMirrored ? by : 0, below);
    };
    const int leading = side - room;
    m_words->setContentsMargins(isMirrored ? side : leading, side, isMirrored ? leading : side, side);
    m_words->setSpacing(0);
    indent(m_lines, room, 0, 0);
    m_lines->setSpacing(Unit::of(4));
    indent(m_switchLine, 0, Unit::of(16), Unit::of(12));
    m_switchLine->setSpacing(Unit::of(12) - room);
    indent(m_tryLine, room, 0, 0);
    m_moreLine->layout()->setContentsMargins(Row::inset(), Unit::of(4), Row::inset(), Unit::of(4));
}

}  // namespace kinesta
