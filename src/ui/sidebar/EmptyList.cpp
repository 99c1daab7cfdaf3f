#include "ui/sidebar/EmptyList.h"

#include <QVBoxLayout>

#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kPad = 64;
constexpr double kPadding = 16;
constexpr double kGap = 8;

}  // namespace

EmptyList::EmptyList(QWidget* parent)
    : QWidget(parent),
      m_pad(new PadPicture(kPad)),
      m_nothing(new Words(tr("No gestures yet"), Words::Size::section)),
      m_notFound(new Words({}, Words::Size::body)),
      m_add(new QPushButton(SymbolIcon::of(windowSymbol(WindowSymbol::add)), tr("Add a gesture"))),
      m_clear(new QPushButton(tr("Clear filter"))) {
    m_add->setProperty("primary", true);
    m_clear->setProperty("link", true);
    m_notFound->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    const int padding = Unit::of(kPadding);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(Unit::of(kGap));
    for (QWidget* part : std::initializer_list<QWidget*>{m_pad, m_nothing, m_notFound, m_add, m_clear})
        column->addWidget(part, 0, qobject_cast<Words*>(part) ? Qt::Alignment() : Qt::AlignHCenter);
    column->addStretch(1);
    for (Words* words : {m_nothing, m_notFound})
        words->alignTo(Qt::AlignHCenter);
    connect(m_add, &QPushButton::clicked, this, &EmptyList::addWanted);
    connect(m_clear, &QPushButton::clicked, this, &EmptyList::clearWanted);
    setFilter({});
}

void EmptyList::setFilter(const QString& filter) {
    const bool isFiltered = !filter.isEmpty();
    m_notFound->setText(tr("No gesture is called “%1”.").arg(filter));
    for (QWidget* part : std::initializer_list<QWidget*>{m_pad, m_nothing, m_add})
        part->setVisible(!isFiltered);
    for (QWidget* part : std::initializer_list<QWidget*>{m_notFound, m_clear})
        part->setVisible(isFiltered);
    setFocusProxy(isFiltered ? m_clear : m_add);
}

}  // namespace kinesta
