#pragma once

#include <QCheckBox>

#include "ui/action/ActionPart.h"
#include "ui/action/CommandField.h"
#include "ui/action/Remark.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Row.h"

namespace kinesta {

/// A shell command, its confirmation, and the notice that Settings do not let commands run.
class CommandPart final : public ActionPart {
    Q_OBJECT

  public:
    explicit CommandPart(const ActionEditing& editing);

    std::vector<QWidget*> rows() const override { return {m_row, m_notice}; }
    void follow(const RuleEditorContent& content) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* makeConfirmation();

    ActionEditing m_editing;
    Row* m_row;
    CommandField* m_field;
    QCheckBox* m_confirmed;
    Words* m_confirmation;
    Remark* m_remark;
    Notice* m_notice;
};

}  // namespace kinesta
