#include "ui/action/ApplicationPart.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "app/ActionObstacle.h"
#include "rules/ActionTarget.h"
#include "support/Text.h"
#include "ui/action/ApplicationChooser.h"
#include "ui/action/ApplicationIcon.h"
#include "ui/action/CleanText.h"
#include "ui/action/FieldColumn.h"
#include "ui/action/FieldFrame.h"
#include "ui/action/WrappingLine.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kIcon = 32;
constexpr double kGap = 12;
/// Of all arguments together, as much as every system passes on.
constexpr qsizetype kLongest = 100'000;
constexpr qsizetype kMostArguments = 1'000;

std::vector<std::string> asTexts(const QStringList& list) {
    std::vector<std::string> texts;
    for (const QString& each : list)
        texts.push_back(each.toStdString());
    return texts;
}

}  // namespace

ApplicationPart::ApplicationPart(const ActionEditing& editing)
    : m_editing(editing),
      m_row(new Row(tr("Application"))),
      m_icon(new QLabel),
      m_name(new Words({}, Words::Size::body)),
      m_path(new Words({}, Words::Size::detail)),
      m_choose(new QPushButton(tr("Choose…"))),
      m_caution(new Remark(Remark::Kind::caution)),
      m_list(new ArgumentList(tr("Arguments"))),
      m_remark(new Remark(Remark::Kind::caution)),
      m_arguments(makeArguments()) {
    auto* application = new QWidget;
    auto* line = new QHBoxLayout(application);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Unit::of(kGap));
    line->addWidget(m_icon);
    auto* words = new QVBoxLayout;
    words->setSpacing(1);
    words->addWidget(m_name);
    words->addWidget(m_path);
    line->addLayout(words, 1);
    auto* whole = new WrappingLine;
    whole->add(application, 1);
    whole->add(m_choose);
    m_row->setWideControl(fieldColumn({whole, m_caution}));
    m_row->title().setBuddy(m_choose);
    connect(m_choose, &QPushButton::clicked, this, &ApplicationPart::choose);
    connect(m_list, &ArgumentList::typed, this,
            [this](const QStringList& all) { m_editing.model.setArguments(asTexts(all)); });
    connect(m_list, &ArgumentList::arranged, this, [this](const QStringList& all) {
        m_editing.model.endTyping();
        m_editing.model.setArguments(asTexts(all));
        m_editing.model.endTyping();
    });
    connect(m_list, &ArgumentList::left, this, [this] { m_editing.model.endTyping(); });
}

Row* ApplicationPart::makeArguments() {
    auto* row = new Row(tr("Arguments"));
    auto* add = new QPushButton(SymbolIcon::of(windowSymbol(WindowSymbol::add)), tr("Add argument"));
    auto* paste = new QPushButton(tr("Paste, one a line"));
    auto* buttons = new WrappingLine;
    buttons->add(add);
    buttons->add(paste);
    buttons->add(new QWidget, 1);
    auto* frame = new FieldFrame(m_list);
    m_list->followWith(frame);
    row->setWideControl(fieldColumn({frame, buttons, m_remark}));
    row->title().setBuddy(m_list);
    connect(add, &QPushButton::clicked, m_list, &ArgumentList::addOne);
    connect(paste, &QPushButton::clicked, this, &ApplicationPart::paste);
    return row;
}

void ApplicationPart::follow(const RuleEditorContent& content) {
    const GestureAction& action = content.rule.action;
    showApplication(action);
    QStringList arguments;
    for (const std::string& each : action.applicationArguments.value_or(std::vector<std::string>()))
        arguments += QString::fromStdString(each);
    m_list->follow(arguments);
    m_remark->setText({});
}

void ApplicationPart::showApplication(const GestureAction& action) {
    const bool isChosen = !trimmed(action.value).empty();
    const auto found = m_editing.applications.at(action.value);
    m_icon->setPixmap(applicationIcon(QString::fromStdString(found ? found->icon : ""))
                          .pixmap(Unit::of(kIcon, kIcon), m_icon->devicePixelRatioF()));
    m_name->setText(isChosen ? shownText(found ? found->name : std::string(applicationName(action.value)))
                             : tr("No application chosen"));
    // Paths run from left to right in every language.
    m_path->setText(isChosen ? QChar(0x2066) + shownText(action.value) + QChar(0x2069) : QString());
    m_path->setVisible(isChosen);
    const auto obstacle = isChosen ? obstacleTo(action, m_editing.desktop) : std::nullopt;
    m_caution->setText(obstacle ? shownText(obstacle->why) : QString());
}

void ApplicationPart::choose() {
    auto* chooser = new ApplicationChooser(m_editing.applications, m_row->window());
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    connect(chooser, &ApplicationChooser::chosen, this, [this](const QString& path) {
        m_editing.model.endTyping();
        m_editing.model.setActionValue(path.toStdString());
        m_editing.model.endTyping();
    });
    // The rule may go while the dialog is open, and with it this part.
    connect(this, &QObject::destroyed, chooser, &QDialog::reject);
    chooser->open();
}

void ApplicationPart::paste() {
    const QString text = QApplication::clipboard()->text();
    if (text.size() > kLongest || text.count(QLatin1Char('\n')) > kMostArguments) {
        m_remark->setText(tr("That text is too long for arguments, so it was left out."));
        return;
    }
    QStringList lines;
    for (const QString& line : text.split(QLatin1Char('\n')))
        if (QString argument = line.endsWith(QLatin1Char('\r')) ? line.chopped(1) : line; !argument.isEmpty())
            lines += cleanText(argument, Lines::one);
    if (lines.isEmpty())
        m_remark->setText(tr("There is no text to paste."));
    else
        m_list->addAll(lines);
}

}  // namespace kinesta
