#pragma once

#include <QPushButton>
#include <QWidget>
#include <functional>
#include <map>

#include "ui/WindowCommands.h"
#include "ui/models/RuleEditorNotice.h"
#include "ui/widgets/Card.h"
#include "ui/widgets/Notice.h"

namespace kinesta {

/// The notices at the end of the gesture card. There are three at most: a rule that was switched off clashes with none.
class NoticeStack final : public QObject {
    Q_OBJECT

  public:
    /// Adds its notices to the card, hidden. All must outlive this.
    NoticeStack(Card& card, RuleEditorModel& model, WindowCommands& commands);

    void show(const RuleEditorContent& content, bool canTellPressure);

  private:
    struct Entry {
        Notice* notice;
        QPushButton* remedy = nullptr;
    };

    Entry& entry(RuleEditorNotice::Topic topic) { return m_entries.at(topic); }

    RuleEditorModel& m_model;
    WindowCommands& m_commands;
    std::map<RuleEditorNotice::Topic, Entry> m_entries;
};

}  // namespace kinesta
