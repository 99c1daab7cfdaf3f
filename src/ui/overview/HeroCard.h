#pragma once

#include <QPushButton>
#include <QVBoxLayout>
#include <vector>

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/OverviewModel.h"
#include "ui/overview/CountdownRing.h"
#include "ui/overview/HeroStage.h"
#include "ui/overview/MarkedRow.h"
#include "ui/widgets/Card.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/Words.h"

namespace kinesta {

/// Whether gestures are recognized, with the switch for it, the last gesture, and notices.
class HeroCard final : public Card {
    Q_OBJECT

  public:
    HeroCard(const WindowParts& parts, WindowCommands& commands, QWidget* parent = nullptr);

    void show(const OverviewContent& content);
    void performWelcome();

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* makeTop();
    void showLastGesture();
    void showNotices();
    void measure();

    const WindowParts& m_parts;
    WindowCommands& m_commands;
    OverviewContent m_content;
    HeroStage* m_stage;
    QBoxLayout* m_top = nullptr;
    QBoxLayout* m_words = nullptr;
    QBoxLayout* m_lines = nullptr;
    QBoxLayout* m_switchLine = nullptr;
    QBoxLayout* m_tryLine = nullptr;
    Words* m_headline;
    Words* m_welcome;
    Words* m_status;
    Switch* m_switch;
    Words* m_switchName;
    QPushButton* m_try;
    CountdownRing* m_ring;
    MarkedRow* m_last;
    QPushButton* m_lastLink;
    std::vector<Notice*> m_notices;
    QPushButton* m_moreNotices;
    QWidget* m_moreLine;
    bool m_showsAllNotices = false;
};

}  // namespace kinesta
