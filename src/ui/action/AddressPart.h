#pragma once

#include "ui/action/ActionPart.h"
#include "ui/action/Remark.h"
#include "ui/action/TextField.h"
#include "ui/widgets/Row.h"

namespace kinesta {

/// The address of a web page, checked while it is typed.
class AddressPart final : public ActionPart {
    Q_OBJECT

  public:
    explicit AddressPart(const ActionEditing& editing);

    std::vector<QWidget*> rows() const override { return {m_row}; }
    void follow(const RuleEditorContent& content) override;

  private:
    void check();

    ActionEditing m_editing;
    Row* m_row;
    TextField* m_field;
    Remark* m_problem;
};

}  // namespace kinesta
