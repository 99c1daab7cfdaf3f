#pragma once

#include <QMenu>
#include <QRect>
#include <functional>
#include <memory>

#include "app/StatusMenu.h"

namespace kinesta {

/// The menu of the status item as a window of our own, where the panel shows none itself. Main thread only.
class StatusMenuPopup {
  public:
    using Chosen = std::function<void(StatusMenuCommand)>;

    explicit StatusMenuPopup(Chosen chosen) : m_chosen(std::move(chosen)) {}

    /// Changes an open menu, too.
    void setMenu(const StatusMenu& menu);

    /// Opens it beside `place`, on the same screen.
    void open(const QRect& place);

  private:
    void fill();

    Chosen m_chosen;
    StatusMenu m_items;
    std::unique_ptr<QMenu> m_menu;  // from its first opening on
};

}  // namespace kinesta
