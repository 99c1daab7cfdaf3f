#pragma once

#include <QPointer>
#include <QStackedWidget>
#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

#include "app/RuleHistory.h"
#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/OverviewModel.h"
#include "ui/models/RuleListModel.h"
#include "ui/window/HistorySteps.h"
#include "ui/window/WindowPlace.h"

namespace kinesta {

class OverviewPage;
class Page;
class Panes;
class ResetQuestion;
class RuleEditorPage;
class RuleFiles;
class SettingsPage;
class Sidebar;
class TestSheet;
class Toast;

/// The configuration window: the sidebar and the page that it selects. Pages are made when they are first shown.
class KinestaWindow final : public QWidget, public WindowCommands {
    Q_OBJECT

  public:
    /// The referents in `parts` must outlive this.
    explicit KinestaWindow(WindowParts parts);
    ~KinestaWindow() override;

    /// Takes what GestureDispatcher passes to its observer.
    void gestureDispatched(const DetectedGesture& gesture, const GestureRule* rule);
    /// What is missing or went wrong, as sentences; the last ones come last.
    void setNotices(std::vector<OverviewNotice> notices);
    /// Reads what cannot be observed: settings that another process has changed, the permission.
    void refresh();

    void select(const WindowSelection& selection) override;
    void addRule() override;
    void addRuleForLastGesture() override;
    void tryGesture() override;
    void runAction(const Uuid& id) override;
    void deleteRules() override { m_list.deleteSelectedRule(); }
    void importRules() override;
    void exportRules() override;
    void resetSettings() override;
    void showAbout() override;
    void copyReport() override;
    void setVisible(bool visible) override;
    void showToast(const QString& text, const QString& action, std::function<void()> onAction) override;
    void undo() override;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void addKeys();
    void addKey(const QKeySequence& keys, void (KinestaWindow::*act)());
    void redo();
    void duplicate();
    void filter();
    void showOverview() { select(WindowSelection::overview()); }
    void showSettings() { select(WindowSelection::settings()); }
    void runSelected();
    void switchPane();
    void goBack();
    void followSelection();
    void showTransfer();
    void bringUp(Page* page);
    void giveBackButton(Page& page);
    void focusPage();
    void keepFocus(QWidget* before, QWidget* now);
    void savePlace();

    WindowParts m_parts;
    RuleHistory m_history;
    HistorySteps m_steps;
    RuleListModel m_list;
    OverviewModel m_overviewModel;
    WindowPlace m_place;
    QTimer m_settled;
    Sidebar* m_sidebar;
    QStackedWidget* m_pages;
    Panes* m_panes;
    Toast* m_toast;
    RuleFiles* m_files;
    ResetQuestion* m_reset;
    QString m_transferProblem;
    QString m_transferNote;
    OverviewPage* m_overview = nullptr;
    SettingsPage* m_settings = nullptr;
    RuleEditorPage* m_editor = nullptr;
    Uuid m_editedRule;
    QPointer<TestSheet> m_testSheet;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
