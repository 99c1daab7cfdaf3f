#include "ui/window/KinestaWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/Desktop.h"
#include "app/SystemReport.h"
#include "ui/about/AboutSheet.h"
#include "ui/editor/RuleEditorPage.h"
#include "ui/overview/OverviewPage.h"
#include "ui/settings/SettingsPage.h"
#include "ui/sidebar/Sidebar.h"
#include "ui/trying/TestSheet.h"
#include "ui/widgets/Unit.h"

namespace kinesta {

KinestaWindow::KinestaWindow(WindowParts parts)
    : m_parts(std::move(parts)),
      m_history(m_parts.store, m_parts.desktop.clock()),
      m_list(m_parts.store, m_history),
      m_overviewModel({.store = m_parts.store,
                       .service = m_parts.service,
                       .testSession = m_parts.testSession,
                       .isPermissionMissing = m_parts.isPermissionMissing,
                       .isFirstLaunch = m_parts.isFirstLaunch}),
      m_splitter(new QSplitter(this)),
      m_sidebar(new Sidebar(m_list, *this)),
      m_pages(new QStackedWidget) {
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_splitter);
    m_splitter->addWidget(m_sidebar);
    m_splitter->addWidget(m_pages);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setSizes({Unit::of(284), Unit::of(696)});
    setMinimumSize(Unit::of(400, 420));
    resize(Unit::of(980, 700));
    m_selectionObserver = m_list.selection().observe([this](const auto&) { showSelected(); });
    showSelected();
}

KinestaWindow::~KinestaWindow() = default;

void KinestaWindow::gestureDispatched(const DetectedGesture& gesture, const GestureRule* rule) {
    m_overviewModel.gestureDispatched(gesture, rule);
    if (m_editor != nullptr)
        m_editor->gestureRecognized(gesture);
    if (m_testSheet)
        m_testSheet->gestureRecognized(gesture);
}

void KinestaWindow::refresh() { m_overviewModel.refresh(); }

void KinestaWindow::select(const WindowSelection& selection) { m_list.select(selection); }

void KinestaWindow::addRule() {
    if (!m_list.addRule())
        m_sidebar->showAddHelp();
    else if (m_editor != nullptr)
        m_editor->focusName();
}

void KinestaWindow::addRuleForLastGesture() { addRule(); }

void KinestaWindow::tryGesture() {
    if (!m_testSheet) {
        m_testSheet = new TestSheet(m_parts, this);
        m_testSheet->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_testSheet->show();
}

void KinestaWindow::runAction(const Uuid& rule) {
    const auto& rules = m_parts.store.rules().value();
    if (const auto found = std::ranges::find(rules, rule, &GestureRule::id); found != rules.end())
        m_parts.runAction(GestureRule(*found));
}

void KinestaWindow::deleteRules() { m_list.deleteSelectedRule(); }
void KinestaWindow::importRules() {}
void KinestaWindow::exportRules() {}
void KinestaWindow::resetSettings() {}
void KinestaWindow::showAbout() { (new AboutSheet(m_parts, *this, this))->show(); }

void KinestaWindow::copyReport() {
    m_parts.report.request([window = QPointer(this)](const SystemReport::Result& result) {
        if (!window)
            return;
        QGuiApplication::clipboard()->setText(QString::fromStdString(result.text));
        window->showToast(tr("Copied the report."), {}, {});
    });
}

void KinestaWindow::showToast(const QString& /*text*/, const QString& /*action*/, std::function<void()> /*onAction*/) {}

void KinestaWindow::showSelected() {
    const WindowSelection selection = m_list.selection().value();
    const bool isRule = selection.kind == WindowSelection::Kind::rule;
    if (m_editor != nullptr && !(isRule && selection.ruleId == m_editedRule)) {
        m_pages->removeWidget(m_editor);
        std::exchange(m_editor, nullptr)->deleteLater();
    }
    if (isRule) {
        if (m_editor == nullptr) {
            m_editedRule = selection.ruleId;
            m_editor = new RuleEditorPage(selection.ruleId, m_list, m_history, m_parts, *this);
            m_pages->addWidget(m_editor);
        }
        m_pages->setCurrentWidget(m_editor);
    } else if (selection.kind == WindowSelection::Kind::settings) {
        if (m_settings == nullptr)
            m_pages->addWidget(m_settings = new SettingsPage(m_parts, *this));
        m_pages->setCurrentWidget(m_settings);
    } else {
        if (m_overview == nullptr)
            m_pages->addWidget(m_overview = new OverviewPage(m_overviewModel, m_parts, *this));
        m_pages->setCurrentWidget(m_overview);
    }
}

}  // namespace kinesta
