#include "ui/action/ApplicationChooser.h"

#include <QFileDialog>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/action/FieldFrame.h"
#include "ui/action/WrappingLine.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kPadding = 24;
constexpr double kGap = 12;
constexpr double kIcon = 24;

}  // namespace

ApplicationChooser::ApplicationChooser(const InstalledApplications& installed, QWidget* parent)
    : QDialog(parent),
      m_all(new ApplicationList(installed.all(), this)),
      m_found(new QSortFilterProxyModel(this)),
      m_filter(new QLineEdit),
      m_list(new QListView),
      m_path(new Words({}, Words::Size::detail)),
      m_choose(new QPushButton(tr("Choose"))) {
    setWindowTitle(tr("Choose an application"));
    setWindowModality(Qt::WindowModal);
    m_found->setSourceModel(m_all);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filter->setPlaceholderText(tr("Find an application"));
    m_filter->setAccessibleName(tr("Find an application"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    m_list->setModel(m_found);
    m_list->setAccessibleName(tr("Applications"));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->viewport()->setAutoFillBackground(false);
    m_list->setUniformItemSizes(true);
    m_list->setIconSize(Unit::of(kIcon, kIcon));
    m_list->setSpacing(2);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_path->setWordWrap(true);
    auto* other = new QPushButton(tr("Choose a file…"));
    auto* cancel = new QPushButton(tr("Cancel"));
    m_choose->setProperty("primary", true);
    m_choose->setDefault(true);
    other->setAutoDefault(false);
    cancel->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Unit::of(8));
    buttons->addWidget(other);
    buttons->addStretch(1);
    buttons->addWidget(cancel);
    buttons->addWidget(m_choose);

    auto* column = new QVBoxLayout(this);
    const int padding = Unit::of(kPadding);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(Unit::of(kGap));
    column->addWidget(m_filter);
    column->addWidget(new FieldFrame(m_list), 1);
    column->addWidget(m_path);
    column->addLayout(buttons);
    resize(Unit::of(440, 520));

    connect(m_filter, &QLineEdit::textChanged, this, &ApplicationChooser::find);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { showCurrent(); });
    connect(m_list, &QListView::doubleClicked, this, &ApplicationChooser::choose);
    connect(m_choose, &QPushButton::clicked, this, &ApplicationChooser::choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(other, &QPushButton::clicked, this, &ApplicationChooser::chooseFile);
    find({});
    m_filter->setFocus();
}

void ApplicationChooser::find(const QString& text) {
    m_found->setFilterFixedString(text.trimmed());
    m_list->setCurrentIndex(m_found->index(0, 0));
    showCurrent();
}

void ApplicationChooser::showCurrent() {
    const QModelIndex index = m_list->currentIndex();
    m_choose->setEnabled(index.isValid());
    if (index.isValid())
        m_path->setText(m_all->path(m_found->mapToSource(index)));
    else
        m_path->setText(m_all->rowCount() == 0 ? tr("No applications were found here.")
                                               : tr("No application is called “%1”.").arg(m_filter->text()));
}

void ApplicationChooser::choose() {
    const QModelIndex index = m_list->currentIndex();
    if (!index.isValid())
        return;
    Q_EMIT chosen(m_all->path(m_found->mapToSource(index)));
    accept();
}

void ApplicationChooser::chooseFile() {
    auto* dialog = new QFileDialog(this, tr("Choose an application"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& path) {
        Q_EMIT chosen(path);
        accept();
    });
    dialog->open();
}

bool ApplicationChooser::eventFilter(QObject* watched, QEvent* event) {
    // The arrows move in the list while the field is typed in.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
            QKeyEvent copy(QEvent::KeyPress, key, Qt::NoModifier);
            static_cast<QObject*>(m_list)->event(&copy);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace kinesta
