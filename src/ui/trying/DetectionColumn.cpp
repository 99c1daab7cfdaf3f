#include "ui/trying/DetectionColumn.h"

#include <QPainter>
#include <cmath>

#include "feedback/ActionCueSymbol.h"
#include "platform/qt/ThemePalette.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/trying/LivePadPainter.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kPictureWidth = 96;
constexpr double kAboveFoot = 10;

QString qstring(const std::string& text) { return QString::fromStdString(text); }

void showIfAny(Words& words, const std::string& text) {
    words.setText(qstring(text));
    words.setVisible(!text.empty());
}

}  // namespace

DetectionColumn::DetectionColumn()
    : m_column(new QVBoxLayout(this)),
      m_caption(new Words(tr("Detected"), Words::Size::caption)),
      m_picture(new PadPicture(kPictureWidth)),
      m_result(new Words({}, Words::Size::result)),
      m_hint(new Words({}, Words::Size::body)),
      m_problem(new Words({}, Words::Size::detail)),
      m_repetition(new MarkedWords(Words::Size::detail, 14, 6)),
      m_confirmation(new MarkedWords(Words::Size::body, 16, 8)),
      m_foot(new QWidget),
      m_footColumn(new QVBoxLayout(m_foot)),
      m_consequence(new MarkedWords(Words::Size::rowTitle, 16, 8)) {
    m_confirmation->setMark(MarkedWords::symbol(windowSymbol(WindowSymbol::works), &AppTheme::positive));
    m_footColumn->addWidget(new Words(tr("Would run"), Words::Size::caption));
    m_footColumn->addWidget(m_consequence);
    m_column->addWidget(m_caption);
    m_column->addWidget(m_picture);
    for (QWidget* part :
         {static_cast<QWidget*>(m_result), static_cast<QWidget*>(m_hint), static_cast<QWidget*>(m_problem),
          static_cast<QWidget*>(m_repetition), static_cast<QWidget*>(m_confirmation)})
        m_column->addWidget(part);
    m_column->addStretch(1);
    m_column->addWidget(m_foot);
    measure();
}

void DetectionColumn::measure() {
    // Begins beside the pad, not beside the margin above it.
    m_column->setContentsMargins(0, static_cast<int>(std::ceil(LivePadPainter::margin())), 0, 0);
    m_column->setSpacing(Unit::of(8));
    m_footColumn->setContentsMargins(0, Unit::of(kAboveFoot), 0, 0);
    m_footColumn->setSpacing(Unit::of(4));
}

void DetectionColumn::setContent(const TestSheetContent& content) {
    using State = TestSheetContent::State;
    const bool isDetected = content.state == State::detected;
    const bool isNews =
        content.state != State::waiting &&
        (m_result->text() != qstring(content.result) || m_repetition->words().text() != qstring(content.repetition));
    m_caption->setVisible(content.state != State::off);
    m_picture->setVisible(content.state != State::off);
    m_picture->setGesture(content.gesture ? PadGesture::of(*content.gesture) : PadGesture());
    m_picture->setAccessibleName(qstring(content.result));
    m_result->setText(qstring(content.result));
    m_result->setForegroundRole(content.state == State::waiting ? QPalette::PlaceholderText : QPalette::WindowText);
    m_result->setAccessibleDescription(qstring(content.repetition));
    showIfAny(*m_hint, content.hint);
    showIfAny(*m_problem, content.problem);
    m_repetition->setVisible(isDetected);
    m_repetition->words().setText(qstring(content.repetition));
    m_repetition->setMark(MarkedWords::symbol(
        windowSymbol(content.isContinuous ? WindowSymbol::wave : WindowSymbol::repeat), &AppTheme::text2));
    m_confirmation->setVisible(isDetected);
    m_confirmation->words().setText(qstring(content.confirmation));
    m_foot->setVisible(isDetected);
    m_consequence->words().setText(qstring(content.consequence));
    m_consequence->words().setForegroundRole(content.action ? QPalette::WindowText : QPalette::PlaceholderText);
    m_consequence->setMark(content.action ? MarkedWords::symbol(actionCueSymbol(*content.action), &AppTheme::text)
                                          : MarkedWords::Mark());
    update();
    if (!isNews || !isVisible())
        return;
    Announcer::announce(*this, qstring(content.result));
    if (isDetected)
        Announcer::announce(*this, qstring(content.repetition));
}

void DetectionColumn::paintEvent(QPaintEvent* /*event*/) {
    if (m_foot->isHidden())
        return;
    QPainter painter(this);
    painter.fillRect(0, m_foot->y(), width(), 1, asQColor(WindowTheme::current().border));
}

}  // namespace kinesta
