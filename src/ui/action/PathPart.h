#pragma once

#include "ui/action/ActionPart.h"
#include "ui/action/Remark.h"
#include "ui/action/TextField.h"
#include "ui/widgets/Row.h"

class QPushButton;

namespace kinesta {

/// The path of a file or folder to open.
class PathPart final : public ActionPart {
    Q_OBJECT

  public:
    explicit PathPart(const ActionEditing& editing);

    std::vector<QWidget*> rows() const override { return {m_row}; }
    void follow(const RuleEditorContent& content) override;

  private:
    enum class Wanted { file, folder };

    void choose(Wanted wanted);

    ActionEditing m_editing;
    Row* m_row;
    TextField* m_field;
    QPushButton* m_choose;
    Remark* m_caution;
};

}  // namespace kinesta
