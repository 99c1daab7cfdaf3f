#include "ui/settings/RecognitionCard.h"

#include <QPushButton>

#include "ui/settings/WheelGuard.h"

namespace kinesta {
namespace {

constexpr int kTrackpadLetters = 24;

}  // namespace

RecognitionCard::RecognitionCard(SettingsModel& model)
    : m_recognition(new Switch(tr("Gesture recognition"))),
      m_problem(new Notice(Notice::Kind::caution, {}, {})),
      m_interval(new Segments(tr("Tap waiting interval"))),
      m_trackpadRow(new Row(tr("Trackpad"))),
      m_trackpad(new QComboBox) {
    auto* recognition = new Row(tr("Gesture recognition"), tr("Reads the trackpad and runs your rules."));
    recognition->setControl(m_recognition);
    auto* start = new QPushButton(tr("Try again"));
    m_problem->setControl(start);
    m_problem->hide();
    for (const TapWaitingInterval interval : TapWaitingInterval::allCases)
        m_interval->addSegment(static_cast<int>(interval.rawValue()), tr("%1 ms").arg(interval.rawValue()));
    auto* interval =
        new Row(tr("Tap waiting interval"),
                tr("How long to wait for a further tap. Shorter acts sooner, longer forgives slow fingers."));
    interval->setControl(m_interval);
    m_trackpad->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_trackpad->setMinimumContentsLength(kTrackpadLetters);
    m_trackpad->setAccessibleName(tr("Trackpad"));
    WheelGuard::install(*m_trackpad);
    m_trackpadRow->setControl(m_trackpad);
    m_trackpadRow->hide();
    for (QWidget* part : std::initializer_list<QWidget*>{recognition, m_problem, interval, m_trackpadRow})
        add(part);

    connect(m_recognition, &Switch::clicked, this, [&model](bool isOn) { model.setGestureEnabled(isOn); });
    connect(start, &QPushButton::clicked, this, [&model] { model.startRecognition(); });
    connect(m_interval, &Segments::chose, this, [&model](int value) { model.setTapWaitingInterval(value); });
    connect(m_trackpad, &QComboBox::activated, this,
            [&model](int index) { model.chooseTrackpad(static_cast<std::size_t>(index)); });
}

void RecognitionCard::load(const SettingsContent& content) {
    m_recognition->setChecked(content.isGestureEnabled);
    m_problem->setWords(QString::fromStdString(content.recognitionProblem), {});
    m_problem->setVisible(!content.recognitionProblem.empty());
    m_interval->setChosen(static_cast<int>(content.tapWaitingInterval));
    if (content.trackpads != m_trackpads)
        loadTrackpads(content.trackpads);
}

void RecognitionCard::loadTrackpads(const TrackpadChoices& trackpads) {
    m_trackpads = trackpads;
    m_trackpad->clear();
    for (const TrackpadChoices::Choice& choice : trackpads.all) {
        m_trackpad->addItem(QString::fromStdString(choice.title));
        m_trackpad->setItemData(m_trackpad->count() - 1, QString::fromStdString(choice.problem), Qt::ToolTipRole);
    }
    m_trackpad->setCurrentIndex(static_cast<int>(trackpads.chosen));
    m_trackpadRow->setDetail(QString::fromStdString(trackpads.detail));
    m_trackpadRow->setVisible(trackpads.isOffered());
}

}  // namespace kinesta
