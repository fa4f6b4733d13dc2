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
// Shows calls that differ.
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

/// What a look at the current credentials asks for, up to and including making them current again.
Lines refreshOf(simulator::LoginKind kind, const std::string& user);

/// An agent whose own computer wants that kind of login, and the session of "demo" with it.
struct Source {
    explicit Source(simulator::LoginKind kind, simulator::Options options = {});

    /// The calls since the last time, without releases.
    Lines takeCalls();
    Lines calls() const;

    /// A set of files of the agent's own computer, whose credentials were changed so.
    boost::shared_ptr<hessiancln::BackupSet>
    set(const std::function<void(simulator::CredentialsState&)>& change);

    /// Nothing but the session is held any more, and nothing was done that no client does.
    void verifyAllReleased() const;

    support::GuiAgent agent;
};

/// The page in a wizard that has a further page, and what a user does with it.
class PageDriver {
public:
    explicit PageDriver(const SelectDataSourcePage::AdministratorTest& isAdministrator =
                            [](const std::string&) { return true; });
    ~PageDriver();

    /// With the focus on a button.
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
    /// Into the field for the computer, and out of it again.
    void typeComputer(const QString& name);
    void leaveComputer();

    QStringList networkRows(const QModelIndex& parent);
    /// Selects the node of the network to which these names lead.
    void select(std::initializer_list<const char*> path);

    /// Every widget that a user can reach has a text or a name for those who don't see it.
    void verifyNames() const;

    /// The wizard goes.
    void close();

private:
    std::unique_ptr<QWizard> wizard_;
    SelectDataSourcePage* page_;
};

} // namespace wizards_test
