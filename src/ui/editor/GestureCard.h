#pragma once

#include <QBoxLayout>

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/editor/GestureDetails.h"
#include "ui/editor/GestureStage.h"
#include "ui/editor/NoticeStack.h"
#include "ui/models/RuleEditorModel.h"
#include "ui/widgets/Card.h"

namespace kinesta {

/// The gesture of a rule: its type, what there is to choose for it, and the pad that performs it.
class GestureCard final : public Card {
    Q_OBJECT

  public:
    /// All must outlive this.
    GestureCard(RuleEditorModel& model, const WindowParts& parts, WindowCommands& commands);

  protected:
    void changeEvent(QEvent* event) override;
    void paintGround(QPainter& painter, const AppTheme& theme) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void addNotices(WindowCommands& commands);
    QWidget* makeTypes();
    void follow();
    void arrange();

    RuleEditorModel& m_model;
    const WindowParts& m_parts;
    TileGroup* m_types;
    QWidget* m_body;
    QBoxLayout* m_line;
    GestureStage* m_stage;
    GestureDetails* m_details;
    NoticeStack* m_notices = nullptr;
    Subscription m_contentObserver;
    Subscription m_statusObserver;
};

}  // namespace kinesta
