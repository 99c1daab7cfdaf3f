#include "ui/about/AboutSheet.h"

#include <QDir>
#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>

#include "app/Desktop.h"
#include "ui/about/ApplicationIcon.h"
#include "ui/about/Licences.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/Words.h"

namespace kinesta {
namespace {

constexpr double kWidth = 300;
constexpr double kPadding = 24;
constexpr double kMonoFactor = 0.92;

QFont monoFont() {
    QFont mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    mono.setPixelSize(Unit::font(kMonoFactor).pixelSize());
    return mono;
}

/// The folder of the settings, with ~ for the home folder.
QString place(Desktop& desktop) {
    const auto folder = desktop.settingsFolder();
    if (!folder)
        return QString::fromStdString(folder.error().message);
    QString path = QString::fromStdString(folder->string());
    if (const QString home = QDir::homePath(); path.startsWith(home + u'/'))
        path.replace(0, home.size(), QStringLiteral("~"));
    return path;
}

Words* centred(const QString& text, Words::Size size) {
    auto* words = new Words(text, size);
    words->alignTo(Qt::AlignCenter);
    return words;
}

}  // namespace

AboutSheet::AboutSheet(const WindowParts& parts, WindowCommands& commands, QWidget* parent)
    : QDialog(parent), m_column(new QVBoxLayout(this)), m_place(new QLabel(place(parts.desktop))) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("About Kinesta"));
    m_place->setTextFormat(Qt::PlainText);
    m_place->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_place->setFocusPolicy(Qt::StrongFocus);  // those flags leave it to the mouse
    m_place->setWordWrap(true);
    m_place->setLayoutDirection(Qt::LeftToRight);
    m_place->setAlignment(Qt::AlignCenter);
    auto* licences = new QPushButton(tr("Licences"));
    auto* copy = new QPushButton(SymbolIcon::of(windowSymbol(WindowSymbol::copy)), tr("Copy report"));
    for (QPushButton* button : {licences, copy})
        button->setAutoDefault(false);
    connect(licences, &QPushButton::clicked, this, &AboutSheet::showLicences);
    connect(copy, &QPushButton::clicked, this, [&commands] { commands.copyReport(); });
    m_column->addWidget(new ApplicationIcon, 0, Qt::AlignHCenter);
    m_column->addWidget(centred(QStringLiteral("Kinesta"), Words::Size::title));
    m_column->addWidget(centred(tr("Version %1").arg(QString::fromStdString(parts.version)), Words::Size::detail));
    m_column->addSpacing(Unit::of(8));
    m_column->addWidget(centred(tr("Rules and settings are kept in"), Words::Size::detail));
    m_column->addWidget(m_place);
    m_column->addSpacing(Unit::of(12));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(licences);
    buttons->addWidget(copy);
    m_column->addLayout(buttons);
    measure();
    licences->setFocus();
}

void AboutSheet::showLicences() {
    auto* sheet = new QDialog(this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(Qt::WindowModal);
    sheet->setWindowTitle(tr("Licences"));
    auto* text =
        new QPlainTextEdit(QString::fromUtf8(Licences::kOwn) + u'\n' + QString::fromUtf8(Licences::kLibraries));
    text->setReadOnly(true);
    // Tab leaves the text, and the keys move in it.
    text->setTabChangesFocus(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setAccessibleName(tr("Licences"));
    text->setLayoutDirection(Qt::LeftToRight);
    auto* done = new QPushButton(tr("Done"));
    connect(done, &QPushButton::clicked, sheet, &QDialog::accept);
    auto* column = new QVBoxLayout(sheet);
    const int padding = Unit::of(kPadding);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(Unit::of(16));
    column->addWidget(text);
    column->addWidget(done, 0, Qt::AlignTrailing);
    sheet->resize(Unit::of(560, 420));
    sheet->show();
}

void AboutSheet::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void AboutSheet::measure() {
    const int padding = Unit::of(kPadding);
    m_column->setContentsMargins(padding, padding, padding, padding);
    m_column->setSpacing(Unit::of(4));
    m_column->setSizeConstraint(QLayout::SetMinimumSize);
    m_place->setFont(monoFont());
    setFixedWidth(Unit::of(kWidth));
}

}  // namespace kinesta
