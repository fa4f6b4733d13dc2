// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include <QStringList>

#include <boost/shared_ptr.hpp>

#include "tests/support/gui_agent.h"
#include "tests/support/gui_modal_driver.h"
// Prints calls that differ.
#include "simulator/world/credentials_state.h"
#include "tests/support/gui_main_window.h"
#include "wizards/select_data_source_page.h"

class QWizard;

namespace hessiancln {
class BackupSet;
}

namespace wizards_test {

using Lines = std::vector<std::string>;

Lines join(const std::vector<Lines>& parts);

/// The calls that read the current credentials, up to and including making them current again.
Lines refreshOf(simulator::LoginKind kind, const std::string& user);

/// An agent whose own computer requires this kind of login, with a session of "demo".
struct Source {
    explicit Source(simulator::LoginKind kind, simulator::Options options = {});

    /// The calls since the last time, without releases.
    Lines takeCalls();
    Lines calls() const;

    /// A set of files of the agent's own computer, with its credentials changed by `change`.
    boost::shared_ptr<hessiancln::BackupSet>
    set(const std::function<void(simulator::CredentialsState&)>& change);

    /// Checks that only the session is held, and that there were no violations.
    void verifyAllReleased() const;

    support::GuiAgent agent;
};

/// The page in a wizard with another page, and the user's actions on it.
class PageDriver {
public:
    explicit PageDriver(const SelectDataSourcePage::AdministratorTest& isAdministrator =
                            [](const std::string&) { return true; });
    ~PageDriver();

    /// Shows it with the focus on a button.
    void show();

    QWizard& wizard() { return *wizard_; }
    SelectDataSourcePage& page() { return *page_; }

    QString text(const char* edit) const;
    bool isShown(const char* widget) const;
    bool isEnabled(const char* widget) const;
    bool isChecked(const char* button) const;
    bool canGoNext() const;

    void click(const char* button);
    void pressNext();
    /// Types into the computer field, then leaves it.
    void typeComputer(const QString& name);
    void leaveComputer();

    QStringList networkRows(const QModelIndex& parent);
    /// Selects the network node at this path of names.
    void select(std::initializer_list<const char*> path);

    /// Checks that every widget the user can reach has a text or an accessible name.
    void verifyNames() const;

    /// Destroys the wizard.
    void close();

private:
    std::unique_ptr<QWizard> wizard_;
    SelectDataSourcePage* page_;
};

} // namespace wizards_test
