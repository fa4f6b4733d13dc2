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
#include "ui/select_row.h"

class QLineEdit;
class QTreeView;
class QWizard;

namespace tour {

using support::child;

inline QString q(const char* text) {
    return QString::fromUtf8(text);
}

/// A main window connected to an agent, and a user with a camera in front of it.
class Photographer {
public:
    /// `change` is applied to the agent. Starts without a login.
    explicit Photographer(Album& album, simulator::Options options = {},
                          const std::function<void(simulator::World&)>& change = {});

    SimpleGUIMainWindow& window() { return driver_.window(); }
    support::MainWindowDriver& driver() { return driver_; }
    support::GuiAgent& agent() { return agent_; }

    /// Expects the dialog opened by the Connect command, and fills it in.
    void expectLogin();
    void logIn();
    /// Advances the agent's clock, and updates the window.
    void letPass(std::chrono::seconds time);
    void selectSet(int row) { ui::selectRow(driver_.sets(), row); }

    /// Makes the agent refuse the next call of that method.
    void refuse(const char* method);
    void refuse(const char* method, const QString& text);

    void take(QWidget& shown, const char* screen) { album_.take(shown, screen); }

    /// What to do with the next dialog. If it is still open afterwards, it is closed.
    template <class Dialog>
    void expect(const std::function<void(Dialog&)>& act) {
        modals_.expect(q(Dialog::staticMetaObject.className()), support::isDialog<Dialog>,
                       [act](QWidget& widget) {
                           act(static_cast<Dialog&>(widget));
                           if (widget.isVisible())
                               widget.close();
                       });
    }
    /// Takes a picture of the next dialog or box.
    void expect(const char* screen);

    /// Runs a slot of the window; checks that all expected dialogs have opened.
    void run(const char* slot);
    /// The same for a dialog that the slot opens, taking its picture.
    void run(const char* slot, const char* screen);
    /// Aborts the program if an expected dialog didn't open.
    void end();

private:
    Album& album_;
    std::shared_ptr<std::atomic<simulator::Milliseconds>> passed_; ///< that the agent is ahead
    support::GuiAgent agent_;
    support::MainWindowDriver driver_;
    support::ModalDriver modals_;
};

void click(QWidget& dialog, const char* button);
void type(QWidget& dialog, const char* field, const char* text);

/// Goes to the next page. Aborts the program if the wizard stays on the page.
void next(QWizard& wizard);
/// Expands the first row, then its first child and so on; returns the last one.
QModelIndex openFirstRows(QTreeView& tree, int levels);
void tick(QTreeView& tree, const QModelIndex& index);

} // namespace tour
