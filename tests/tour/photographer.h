// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

#include "simulator/options.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_wizard.h"
#include "tests/tour/album.h"

class QLineEdit;
class QTreeView;
class QWizard;

namespace tour {

using support::child;

inline QString q(const char* text) {
    return QString::fromUtf8(text);
}

/// A main window with an agent behind it, and somebody with a camera in front of it.
class Photographer {
public:
    /// `change` is done to the agent. Nobody is logged in yet.
    explicit Photographer(Album& album, simulator::Options options = {},
                          const std::function<void(simulator::World&)>& change = {});

    SimpleGUIMainWindow& window() { return driver_.window(); }
    support::MainWindowDriver& driver() { return driver_; }
    support::GuiAgent& agent() { return agent_; }

    /// The dialog that the command to connect opens comes next, and is filled in.
    void expectLogin();
    void logIn();
    /// So much time passes for the agent, and the window shows what has come of it.
    void letPass(std::chrono::seconds time);
    void selectSet(int row) { driver_.sets().selectRow(row); }

    /// The agent refuses the next call of that method.
    void refuse(const char* method);
    void refuse(const char* method, const QString& text);

    void take(QWidget& shown, const char* screen) { album_.take(shown, screen); }

    /// What to do in front of the dialog that comes next. If it is open then, it is closed.
    template <class Dialog>
    void expect(const std::function<void(Dialog&)>& act) {
        modals_.expect(q(Dialog::staticMetaObject.className()), support::isDialog<Dialog>,
                       [act](QWidget& widget) {
                           act(static_cast<Dialog&>(widget));
                           if (widget.isVisible())
                               widget.close();
                       });
    }
    /// A picture of the dialog or the box that comes next.
    void expect(const char* screen);

    /// Runs a slot of the window; all that was to come has come then.
    void run(const char* slot);
    /// The same of the dialog that the menu opens by that slot.
    void run(const char* slot, const char* screen);
    /// Ends the program if something that was expected didn't come.
    void end();

private:
    Album& album_;
    std::shared_ptr<std::atomic<simulator::Milliseconds>> passed_; ///< in which the agent is ahead
    support::GuiAgent agent_;
    support::MainWindowDriver driver_;
    support::ModalDriver modals_;
};

void click(QWidget& dialog, const char* button);
void type(QWidget& dialog, const char* field, const char* text);

/// Goes on to the next page. Ends the program if the wizard stays where it is.
void next(QWizard& wizard);
/// Opens the first row, the first one below it and so on; the last of them.
QModelIndex openFirstRows(QTreeView& tree, int levels);
void tick(QTreeView& tree, const QModelIndex& index);

} // namespace tour
