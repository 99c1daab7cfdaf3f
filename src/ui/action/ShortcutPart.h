#pragma once

#include "ui/action/ActionPart.h"
#include "ui/action/ShortcutMenus.h"
#include "ui/action/ShortcutRecorder.h"
#include "ui/widgets/Row.h"

namespace kinesta {

/// The recorder of a keyboard shortcut, and lists to choose one from.
class ShortcutPart final : public ActionPart {
    Q_OBJECT

  public:
    explicit ShortcutPart(const ActionEditing& editing);

    std::vector<QWidget*> rows() const override { return {m_row}; }
    void follow(const RuleEditorContent& content) override;

  private:
    void showDetail();

    ActionEditing m_editing;
    Row* m_row;
    ShortcutRecorder* m_recorder;
    ShortcutMenus* m_menus;
};

}  // namespace kinesta
