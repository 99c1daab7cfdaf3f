#pragma once

#include <QPointer>
#include <QSplitter>
#include <QStackedWidget>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "app/RuleHistory.h"
#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/OverviewModel.h"
#include "ui/models/RuleListModel.h"

namespace kinesta {

class AboutSheet;
class OverviewPage;
class RuleEditorPage;
class SettingsPage;
class Sidebar;
class TestSheet;

/// The configuration window: the sidebar and the page that it selects. Pages are made when they are first shown.
class KinestaWindow final : public QWidget, public WindowCommands {
    Q_OBJECT

  public:
    /// The referents in `parts` must outlive this.
    explicit KinestaWindow(WindowParts parts);
    ~KinestaWindow() override;

    /// Takes what GestureDispatcher passes to its observer.
    void gestureDispatched(const DetectedGesture& gesture, const GestureRule* rule);
    void setNotices(std::vector<OverviewNotice> notices) { m_overviewModel.setNotices(std::move(notices)); }
    /// Reads what cannot be observed.
    void refresh();

    void select(const WindowSelection& selection) override;
    void addRule() override;
    void addRuleForLastGesture() override;
    void tryGesture() override;
    void runAction(const Uuid& rule) override;
    void deleteRules() override;
    void importRules() override;
    void exportRules() override;
    void resetSettings() override;
    void showAbout() override;
    void copyReport() override;
    void showToast(const QString& text, const QString& action, std::function<void()> onAction) override;

  private:
    void showSelected();

    WindowParts m_parts;
    RuleHistory m_history;
    RuleListModel m_list;
    OverviewModel m_overviewModel;
    QSplitter* m_splitter;
    Sidebar* m_sidebar;
    QStackedWidget* m_pages;
    OverviewPage* m_overview = nullptr;
    SettingsPage* m_settings = nullptr;
    RuleEditorPage* m_editor = nullptr;
    Uuid m_editedRule;
    QPointer<TestSheet> m_testSheet;
    Subscription m_selectionObserver;
};

}  // namespace kinesta
