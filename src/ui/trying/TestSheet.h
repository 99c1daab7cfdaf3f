#pragma once

#include <QBoxLayout>
#include <QDialog>
#include <QScrollArea>

#include "rules/RuleSelection.h"
#include "ui/WindowParts.h"
#include "ui/models/TestSheetModel.h"

namespace kinesta {

class DetectionColumn;
class LiveTrackpad;
class LivePad;
class PadKey;

/// Shows the pad and each gesture as it is recognized while no action runs. The session lasts as long as the sheet is
/// shown, however it closes; it closes with the window behind it and with the program.
class TestSheet final : public QDialog {
    Q_OBJECT

  public:
    /// The parts must outlive this.
    TestSheet(const WindowParts& parts, QWidget* parent);
    ~TestSheet() override;

    /// Takes every recognized gesture.
    void gestureRecognized(const DetectedGesture& gesture);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void begin();
    void end();
    void setContent(const TestSheetContent& content);
    void followTrackpad();
    void measure();
    void fitHeight();
    QWidget* makeBand();

    GestureTestSession& m_session;
    MultitouchService& m_service;
    LiveTrackpad& m_trackpad;
    TestSheetModel m_model;
    bool m_isTrying = false;
    QScrollArea* m_scroll;
    QWidget* m_body;
    QVBoxLayout* m_page;
    QBoxLayout* m_columns;
    LivePad* m_pad;
    PadKey* m_key;
    DetectionColumn* m_detection;
    QWidget* m_band;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
