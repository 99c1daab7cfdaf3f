#include "ui/widgets/AccessibleParts.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "ui/widgets/Announcer.h"
#include "ui/widgets/ChoiceGroup.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/PadPicture.h"

namespace kinesta::AccessibleParts {
namespace {

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
