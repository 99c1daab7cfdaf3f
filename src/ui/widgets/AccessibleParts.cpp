#include "ui/widgets/AccessibleParts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QLineEdit>

#include "ui/widgets/Announcer.h"
#include "ui/widgets/ChoiceGroup.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/PadPicture.h"

namespace kinesta::AccessibleParts {
namespace {

/// The frame of a list has the field in which an entry is typed as a child, too: lists of Qt have their entries alone.
class FrameOfList final : public QAccessibleWidget {
  public:
    explicit FrameOfList(QWidget* frame) : QAccessibleWidget(frame, QAccessible::Grouping) {}

    int childCount() const override { return QAccessibleWidget::childCount() + static_cast<int>(fields().size()); }

    QAccessibleInterface* child(int index) const override {
        const int usual = QAccessibleWidget::childCount();
        const auto open = fields();
        const int field = index - usual;
        if (field < 0 || field >= open.size())
            return QAccessibleWidget::child(index);
        return QAccessible::queryAccessibleInterface(open.at(field));
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto open = fields();
        for (int i = 0; child != nullptr && i < open.size(); ++i)
            if (open.at(i) == child->object())
                return QAccessibleWidget::childCount() + i;
        return QAccessibleWidget::indexOfChild(child);
    }

  private:
    QList<QLineEdit*> fields() const {
        QList<QLineEdit*> open;
        for (const auto* list : widget()->findChildren<QAbstractItemView*>())
            open += list->viewport()->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
        return open;
    }
};

/// A screen reader's toggle is a click, which asks for a change; Qt's own would only change the picture.
class ClickedButton final : public QAccessibleWidget {
  public:
    explicit ClickedButton(QAbstractButton* button) : QAccessibleWidget(button) {}

    // Asked before it is in a group, too.
    QAccessible::Role role() const override {
        if (!button().isCheckable())
            return QAccessible::Button;
        return button().autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button().isCheckable() ? 1 : 0;
        state.checked = button().isChecked() ? 1 : 0;
        state.pressed = button().isDown() ? 1 : 0;
        return state;
    }

    QString text(QAccessible::Text kind) const override {
        const QString text = QAccessibleWidget::text(kind);
        return text.isEmpty() && kind == QAccessible::Name ? button().text() : text;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled())
            names.prepend(button().isCheckable() ? toggleAction() : pressAction());
        return names;
    }

    void doAction(const QString& action) override {
        if (action == toggleAction() || action == pressAction())
            button().click();
        else
            QAccessibleWidget::doAction(action);
    }

  private:
    QAbstractButton& button() const { return *static_cast<QAbstractButton*>(widget()); }
};

/// Asked for each class of an object, the most derived first.
QAccessibleInterface* make(const QString& name, QObject* object) {
    const auto is = [&name](const QMetaObject& type) { return name == QLatin1String(type.className()); };
    if (is(ChoiceGroup::staticMetaObject))
        return new QAccessibleWidget(static_cast<ChoiceGroup*>(object), QAccessible::Grouping);
    if (is(PadPicture::staticMetaObject))
        return new QAccessibleWidget(static_cast<PadPicture*>(object), QAccessible::Graphic);
    if (is(Notice::staticMetaObject))
        return new QAccessibleWidget(static_cast<Notice*>(object), QAccessible::AlertMessage);
    if (is(Announcer::staticMetaObject))
        return new QAccessibleWidget(static_cast<Announcer*>(object), QAccessible::Notification);
    if (is(QAbstractButton::staticMetaObject) || is(QCheckBox::staticMetaObject))
        return new ClickedButton(static_cast<QAbstractButton*>(object));
    if (name == QLatin1String("kinesta::CountdownRing"))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
    if (name == QLatin1String("kinesta::FieldFrame"))
        return new FrameOfList(static_cast<QWidget*>(object));
    // Otherwise it would be a mere container.
    if (name == QLatin1String("kinesta::KinestaWindow"))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Window);
    return nullptr;
}

}  // namespace

void install() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(&make);
        return true;
    }();
    static_cast<void>(isInstalled);
}

}  // namespace kinesta::AccessibleParts
