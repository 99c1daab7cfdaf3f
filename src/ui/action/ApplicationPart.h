#pragma once

#include <QLabel>
#include <QPushButton>
#include <string>

#include "ui/action/ActionPart.h"
#include "ui/action/ArgumentList.h"
#include "ui/action/Remark.h"
#include "ui/widgets/Row.h"

namespace kinesta {

/// The application to start, and its arguments.
class ApplicationPart final : public ActionPart {
    Q_OBJECT

  public:
    explicit ApplicationPart(const ActionEditing& editing);

    std::vector<QWidget*> rows() const override { return {m_row, m_arguments}; }
    void follow(const RuleEditorContent& content) override;

  private:
    Row* makeArguments();
    void showApplication(const GestureAction& action);
    void choose();
    void paste();

    ActionEditing m_editing;
    Row* m_row;
    QLabel* m_icon;
    Words* m_name;
    Words* m_path;
    QPushButton* m_choose;
    Remark* m_caution;
    ArgumentList* m_list;
    Remark* m_remark;
    Row* m_arguments;
};

}  // namespace kinesta
