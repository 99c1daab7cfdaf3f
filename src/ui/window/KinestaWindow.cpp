#include "ui/window/KinestaWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <utility>

#include "app/Desktop.h"
#include "app/SystemReport.h"
#include "ui/about/AboutSheet.h"
#include "ui/about/ApplicationIcon.h"
#include "ui/editor/RuleEditorPage.h"
#include "ui/models/RuleEditing.h"
#include "ui/overview/OverviewPage.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/settings/SettingsPage.h"
#include "ui/sidebar/Sidebar.h"
#include "ui/trying/TestSheet.h"
#include "ui/widgets/AccessibleParts.h"
#include "ui/widgets/FieldUndo.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"
#include "ui/window/Panes.h"
#include "ui/window/ResetQuestion.h"
#include "ui/window/RuleFiles.h"
#include "ui/window/StepAside.h"
#include "ui/window/Toast.h"

namespace kinesta {
namespace {

constexpr std::chrono::milliseconds kSettled{400};

}  // namespace

KinestaWindow::KinestaWindow(WindowParts parts)
    : m_parts(std::move(parts)),
      m_history(m_parts.store, m_parts.desktop.clock()),
      m_steps(m_history, *this),
      m_list(m_parts.store, m_history),
      m_overviewModel({.store = m_parts.store,
                       .service = m_parts.service,
                       .testSession = m_parts.testSession,
                       .isPermissionMissing = m_parts.isPermissionMissing,
                       .isFirstLaunch = m_parts.isFirstLaunch}),
      m_place(m_parts.desktop.defaults()),
      m_sidebar(new Sidebar(m_list, *this)),
      m_pages(new QStackedWidget),
      m_panes(new Panes(m_sidebar, m_pages)),
      m_toast(new Toast(m_pages, this)),
      m_files(new RuleFiles(m_parts, m_history, *this, this)),
      m_reset(new ResetQuestion(
          m_parts, m_history, *this,
          [this] {
              m_parts.reloadSettings();
              refresh();
          },
          this)) {
    AccessibleParts::install();
    setWindowIcon(ApplicationIcon::icon());
    setAcceptDrops(true);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_panes);
    setMinimumSize(Unit::of(400, 420));
    resize(Unit::of(980, 700));
    if (const auto sidebar = m_place.restore(*this))
        m_panes->setSidebarWidth(*sidebar);
    connect(m_sidebar, &Sidebar::opened, this, [this] {
        m_panes->setPageInFront(true);
        if (m_panes->isOnePane())
            focusPage();
    });
    connect(m_sidebar, &Sidebar::nameWanted, this, [this] {
        m_panes->setPageInFront(true);
        if (m_editor != nullptr)
            m_editor->focusName();
    });
    connect(m_files, &RuleFiles::problemChanged, this, [this](const QString& problem) {
        m_transferProblem = problem;
        m_transferNote.clear();
        showTransfer();
    });
    connect(m_files, &RuleFiles::copyKept, this, [this](const QString& file) {
        m_transferNote = tr("The rules before the import are kept in %1").arg(file);
        showTransfer();
    });
    addKeys();
    connect(qApp, &QApplication::focusChanged, this, &KinestaWindow::keepFocus);
    // Qt still names the screen while it tells that it goes.
    connect(
        qApp, &QGuiApplication::screenRemoved, this, [this] { WindowPlace::bringBack(*this); }, Qt::QueuedConnection);
    m_settled.setSingleShot(true);
    m_settled.setInterval(kSettled);
    connect(&m_settled, &QTimer::timeout, this, &KinestaWindow::savePlace);
    m_observers.push_back(m_list.selection().observe([this](const auto&) { followSelection(); }));
    m_observers.push_back(m_parts.store.rules().observe([this](const auto&) { m_toast->dismissOffer(); }));
    followSelection();
}

KinestaWindow::~KinestaWindow() {
    if (isVisible())
        savePlace();
    qApp->removeEventFilter(this);
    // They observe the members.
    while (!children().isEmpty())
        delete children().front();
}

void KinestaWindow::addKeys() {
    addKey(QKeySequence::New, &KinestaWindow::addRule);
    addKey(Qt::CTRL | Qt::Key_D, &KinestaWindow::duplicate);
    addKey(QKeySequence::Find, &KinestaWindow::filter);
    addKey(Qt::CTRL | Qt::Key_1, &KinestaWindow::showOverview);
    addKey(Qt::CTRL | Qt::Key_Comma, &KinestaWindow::showSettings);
    addKey(Qt::CTRL | Qt::Key_T, &KinestaWindow::tryGesture);
    addKey(Qt::Key_F1, &KinestaWindow::showAbout);
    addKey(QKeySequence::Undo, &KinestaWindow::undo);
    addKey(QKeySequence::Redo, &KinestaWindow::redo);
    addKey(Qt::CTRL | Qt::Key_Return, &KinestaWindow::runSelected);
    addKey(Qt::CTRL | Qt::Key_Enter, &KinestaWindow::runSelected);
    addKey(Qt::Key_F6, &KinestaWindow::switchPane);
    addKey(Qt::ALT | Qt::Key_Left, &KinestaWindow::goBack);
    auto* close = new QAction(this);
    close->setShortcut(QKeySequence::Close);
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    qApp->installEventFilter(new FieldUndo({.canUndo = [this] { return m_history.possibilities().value().undo; },
                                            .canRedo = [this] { return m_history.possibilities().value().redo; },
                                            .undo = [this] { undo(); },
                                            .redo = [this] { redo(); }},
                                           this));
}

void KinestaWindow::addKey(const QKeySequence& keys, void (KinestaWindow::*act)()) {
    auto* action = new QAction(this);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
}

void KinestaWindow::gestureDispatched(const DetectedGesture& gesture, const GestureRule* rule) {
    m_overviewModel.gestureDispatched(gesture, rule);
    if (m_editor != nullptr)
        m_editor->gestureRecognized(gesture);
    if (m_testSheet)
        m_testSheet->gestureRecognized(gesture);
}

void KinestaWindow::setNotices(std::vector<OverviewNotice> notices) {
    const auto& before = m_overviewModel.content().value().notices;
    // Who edits a rule must see that it is not stored, without the overview.
    const auto news = std::ranges::find_if(notices, [&](const OverviewNotice& notice) {
        return notice.kind == OverviewNotice::Kind::problem && std::ranges::find(before, notice) == before.end();
    });
    if (news != notices.end() && m_list.selection().value() != WindowSelection::overview())
        m_toast->tell(QString::fromStdString(news->text), {}, {});
    m_overviewModel.setNotices(std::move(notices));
}

void KinestaWindow::refresh() {
    m_overviewModel.refresh();
    if (m_settings != nullptr)
        m_settings->refresh();
}

void KinestaWindow::select(const WindowSelection& selection) {
    m_list.select(selection);
    m_panes->setPageInFront(true);
}

void KinestaWindow::addRule() {
    if (!m_list.addRule()) {
        m_sidebar->showAddHelp();
        return;
    }
    m_panes->setPageInFront(true);
    m_editor->focusName();
}

void KinestaWindow::addRuleForLastGesture() {
    const auto last = m_overviewModel.content().value().lastGesture;
    addRule();
    const GestureRule* selected = m_list.selectedRule();
    if (!last || selected == nullptr || selected->gesture != GestureKind::unconfigured)
        return;
    GestureRule rule = *selected;
    takeGesture(rule, last->gesture);
    if (const auto binding = m_parts.store.binding(rule.id))
        m_history.record([&] { binding->set(rule); });
}

void KinestaWindow::tryGesture() {
    if (m_editor != nullptr)
        m_editor->stopWaiting();  // its session would end that of the sheet
    if (!m_testSheet) {
        m_testSheet = new TestSheet(m_parts, this);
        m_testSheet->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_testSheet->show();
    m_testSheet->raise();
    m_testSheet->activateWindow();
}

void KinestaWindow::runAction(const Uuid& id) {
    const auto& rules = m_parts.store.rules().value();
    const auto found = std::ranges::find(rules, id, &GestureRule::id);
    if (found == rules.end() || !found->action.isConfigured())
        return;
    const auto run = [this, rule = *found] { m_parts.runAction(rule); };
    switch (found->action.kind) {
        case ActionKind::adjustVolume:
        case ActionKind::disableAllRules:
        case ActionKind::toggleConfigurationWindow:
            run();
            break;
        default:
            stepAside(*this, run);
    }
}

void KinestaWindow::runSelected() {
    if (const GestureRule* rule = m_list.selectedRule())
        runAction(Uuid(rule->id));
}

void KinestaWindow::importRules() { m_files->import(); }

void KinestaWindow::exportRules() { m_files->exportAll(); }

void KinestaWindow::resetSettings() { m_reset->ask(); }

void KinestaWindow::showAbout() {
    auto* about = new AboutSheet(m_parts, *this, this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

void KinestaWindow::copyReport() {
    m_parts.report.request([this, still = QPointer<KinestaWindow>(this)](const SystemReport::Result& result) {
        if (!still)
            return;
        // Without findings it still has the versions.
        if (!result.text.empty())
            QGuiApplication::clipboard()->setText(QString::fromStdString(result.text));
        const QString problem = QString::fromStdString(result.problem);
        if (problem.isEmpty())
            showToast(tr("Report copied"), {}, {});
        else
            showToast(result.text.empty() ? problem : tr("Only the versions were copied. %1").arg(problem), {}, {});
    });
}

void KinestaWindow::showToast(const QString& text, const QString& action, std::function<void()> onAction) {
    m_toast->tell(text, action, std::move(onAction));
}

void KinestaWindow::undo() {
    m_toast->dismissOffer();
    m_steps.undo();
}

void KinestaWindow::redo() {
    m_toast->dismissOffer();
    m_steps.redo();
}

void KinestaWindow::duplicate() {
    const GestureRule* rule = m_list.selectedRule();
    if (rule == nullptr)
        return;
    m_list.duplicateRule(Uuid(rule->id));
    m_panes->setPageInFront(true);
    m_editor->focusName();
}

void KinestaWindow::filter() {
    m_panes->setPageInFront(false);
    m_sidebar->focusFilter();
}

void KinestaWindow::switchPane() {
    const bool isInSidebar = m_sidebar->isAncestorOf(focusWidget());
    m_panes->setPageInFront(isInSidebar);
    isInSidebar ? focusPage() : m_sidebar->focusList();
}

void KinestaWindow::goBack() {
    if (!m_panes->isOnePane() || m_panes->isListShown())
        return;
    m_panes->setPageInFront(false);
    m_sidebar->focusList();
}

/// A list of completions that is still open while its dialog closes keeps Qt from noticing that this window has the
/// focus again.
void KinestaWindow::keepFocus(QWidget* /*before*/, QWidget* now) {
    if (now == nullptr)
        QTimer::singleShot(0, this, [this] {
            if (QGuiApplication::focusWindow() == windowHandle() && QApplication::activeWindow() == nullptr)
                QApplication::setActiveWindow(this);
        });
}

void KinestaWindow::focusPage() {
    QWidget* first = m_pages->currentWidget();
    for (QWidget* next = first->nextInFocusChain(); next != first; next = next->nextInFocusChain())
        if (first->isAncestorOf(next) && next->isVisible() && next->isEnabled() &&
            (next->focusPolicy() & Qt::TabFocus) != 0) {
            next->setFocus(Qt::TabFocusReason);
            return;
        }
}

void KinestaWindow::followSelection() {
    const WindowSelection selection = m_list.selection().value();
    const bool isRule = selection.kind == WindowSelection::Kind::rule;
    RuleEditorPage* former = nullptr;
    if (m_editor != nullptr && !(isRule && selection.ruleId == m_editedRule))
        former = std::exchange(m_editor, nullptr);
    const bool isTypedInAndGone =
        former != nullptr && former->isAncestorOf(focusWidget()) &&
        std::ranges::count(m_parts.store.rules().value(), m_editedRule, &GestureRule::id) == 0;
    if (isRule) {
        if (m_editor == nullptr) {
            m_editedRule = selection.ruleId;
            m_editor = new RuleEditorPage(selection.ruleId, m_list, m_history, m_parts, *this);
        }
        bringUp(m_editor);
    } else if (selection.kind == WindowSelection::Kind::settings) {
        if (m_settings == nullptr) {
            m_settings = new SettingsPage(m_parts, *this);
            showTransfer();
        }
        bringUp(m_settings);
    } else {
        if (m_overview == nullptr)
            m_overview = new OverviewPage(m_overviewModel, m_parts, *this);
        bringUp(m_overview);
    }
    // Qt has given the focus to the first switch: who types on would turn it.
    if (isTypedInAndGone)
        m_pages->currentWidget()->setFocus();
    if (former != nullptr) {
        m_pages->removeWidget(former);
        former->deleteLater();  // one of its own buttons may have changed the selection
    }
}

void KinestaWindow::showTransfer() {
    if (m_settings != nullptr)
        m_settings->setTransfer(m_transferProblem, m_transferNote);
}

void KinestaWindow::bringUp(Page* page) {
    if (m_pages->indexOf(page) < 0) {
        giveBackButton(*page);
        m_pages->addWidget(page);
        m_toast->takeLastTabStop();
    }
    m_pages->setCurrentWidget(page);
}

void KinestaWindow::giveBackButton(Page& page) {
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    button->setIcon(SymbolIcon::of(
        windowSymbol(layoutDirection() == Qt::RightToLeft ? WindowSymbol::chevronRight : WindowSymbol::chevronLeft)));
    button->setAccessibleName(tr("Back"));
    button->setToolTip(tr("Back"));
    button->setFixedSize(Unit::of(28, 28));
    page.setBackButton(button);
    button->setVisible(m_panes->isOnePane());
    connect(button, &QToolButton::clicked, this, &KinestaWindow::goBack);
    connect(m_panes, &Panes::arranged, button, [this, button] { button->setVisible(m_panes->isOnePane()); });
}

bool KinestaWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        refresh();
    else if ((event->type() == QEvent::Move || event->type() == QEvent::Resize) && isVisible())
        m_settled.start();
    else if (event->type() == QEvent::Hide || event->type() == QEvent::Close)
        savePlace();
    return QWidget::event(event);
}

/// Some window managers move a window to the corner of the screen while it is hidden.
void KinestaWindow::setVisible(bool visible) {
    if (visible && isHidden() && !isMaximized() && !isFullScreen())
        m_place.restore(*this);
    QWidget::setVisible(visible);
}

void KinestaWindow::savePlace() {
    m_settled.stop();
    m_place.save(*this, m_panes->sidebarWidth());
}

void KinestaWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape || event->modifiers() != Qt::NoModifier) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_toast->isVisible())
        m_toast->dismiss();
    else if (!m_panes->isListShown())
        goBack();
    else
        close();
}

void KinestaWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (RuleFiles::takes(*event->mimeData()))
        event->acceptProposedAction();
}

void KinestaWindow::dropEvent(QDropEvent* event) {
    if (m_files->drop(*event->mimeData()))
        event->acceptProposedAction();
}

}  // namespace kinesta
