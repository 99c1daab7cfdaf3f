#include "ui/action/ArgumentList.h"

#include <QKeyEvent>
#include <algorithm>

#include "ui/action/ArgumentDelegate.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr int kMostRows = 6;

}  // namespace

ArgumentList::ArgumentList(const QString& name, QWidget* parent) : QListWidget(parent) {
    setAccessibleName(name);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setItemDelegate(new ArgumentDelegate(this));
    setDragDropMode(InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    setEditTriggers(DoubleClicked | EditKeyPressed | SelectedClicked);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    connect(this, &QListWidget::itemChanged, this, [this] {
        if (!m_isChanging)
            Q_EMIT typed(all());
    });
    fitHeight();
}

void ArgumentList::followWith(QWidget* frame) {
    m_frame = frame;
    fitHeight();
}

void ArgumentList::follow(const QStringList& stored) {
    m_stored = stored;
    // An argument that is being typed stays.
    if (state() != EditingState && all() != m_stored)
        show(m_stored);
}

void ArgumentList::addOne() {
    m_isChanging = true;
    QListWidgetItem* item = append({});
    m_isChanging = false;
    setCurrentItem(item);
    scrollToItem(item);
    editItem(item);
}

void ArgumentList::addAll(const QStringList& arguments) {
    m_isChanging = true;
    for (const QString& each : arguments)
        append(each);
    m_isChanging = false;
    setCurrentRow(count() - 1);
    Q_EMIT arranged(all());
}

QStringList ArgumentList::all() const {
    QStringList texts;
    for (int row = 0; row < count(); ++row)
        texts += item(row)->text();
    return texts;
}

void ArgumentList::show(const QStringList& arguments) {
    m_isChanging = true;
    const int current = currentRow();
    clear();
    for (const QString& each : arguments)
        append(each);
    m_isChanging = false;
    fitHeight();
    setCurrentRow(std::min(current, count() - 1));
}

QListWidgetItem* ArgumentList::append(const QString& text) {
    auto* item = new QListWidgetItem(text, this);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled);
    fitHeight();
    return item;
}

void ArgumentList::keyPressEvent(QKeyEvent* event) {
    const int row = currentRow();
    const bool isAlt = event->modifiers() == Qt::AltModifier;
    if (isAlt && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down))
        move(row, event->key() == Qt::Key_Up ? row - 1 : row + 1);
    else if (event->modifiers() == Qt::NoModifier &&
             (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace))
        remove(row);
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() == NoState && row >= 0)
        editItem(currentItem());
    else
        QListWidget::keyPressEvent(event);
}

void ArgumentList::mouseReleaseEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->pos());
    const bool isClick = state() == NoState && event->button() == Qt::LeftButton && index.isValid();
    if (isClick && index == currentIndex() &&
        ArgumentDelegate::removeBox(visualRect(index), layoutDirection()).contains(event->pos()))
        return remove(index.row());
    QListWidget::mouseReleaseEvent(event);
}

void ArgumentList::dropEvent(QDropEvent* event) {
    m_isChanging = true;
    QListWidget::dropEvent(event);
    m_isChanging = false;
    if (all() != m_stored)
        Q_EMIT arranged(all());
}

void ArgumentList::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QListWidget::closeEditor(editor, hint);
    m_isChanging = true;
    for (int row = count() - 1; row >= 0; --row)
        if (item(row)->text().isEmpty())
            delete takeItem(row);
    m_isChanging = false;
    fitHeight();
    if (all() != m_stored)
        Q_EMIT arranged(all());
    Q_EMIT left();
}

void ArgumentList::move(int from, int to) {
    if (from < 0 || to < 0 || to >= count())
        return;
    m_isChanging = true;
    insertItem(to, takeItem(from));
    m_isChanging = false;
    setCurrentRow(to);
    Q_EMIT arranged(all());
}

void ArgumentList::remove(int row) {
    if (row < 0)
        return;
    delete takeItem(row);
    setCurrentRow(std::min(row, count() - 1));
    fitHeight();
    Q_EMIT arranged(all());
}

void ArgumentList::fitHeight() {
    setFixedHeight(std::clamp(count(), 1, kMostRows) * ArgumentDelegate::rowHeight());
    if (m_frame != nullptr)
        m_frame->setVisible(count() > 0);
}

}  // namespace kinesta
