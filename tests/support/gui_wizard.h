// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QWizard>

#include "simulator/world/scenario.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"

namespace support {

/// The user's actions on a page before Next.
using AtPage = std::function<void(QWizardPage&)>;

/// Goes through the pages of an open wizard and finishes it; cancels it if it doesn't let the user
/// continue. Returns whether it was finished.
bool finishWizard(QWidget& wizard, const AtPage& atPage = {});

/// Advances by `page` pages and cancels.
void cancelWizard(QWidget& wizard, int page, const AtPage& atPage = {});

/// Types the name "  New one " on the page for the name.
void nameNewSet(QWizardPage& page);

/// How the user closes a wizard without finishing it.
using Leave = std::function<void(QWizard&)>;

/// The data of a test for each of the ways, in the column "leave".
void addWaysToLeave();

/// A main window that is logged in to an agent, and the user in front of it.
class WizardTest {
public:
    /// `change` is applied to the agent before the login.
    void start(simulator::Scenario scenario = simulator::Scenario::Default,
               const std::function<void(simulator::World&)>& change = {});
    /// Ends everything; anything left over fails the test.
    void end();

    /// Runs a slot of the window and records the resulting calls in the agent's log. Each reference
    /// the window obtains has to be released at the end.
    void run(const char* slot);
    /// A wizard that can be finished.
    void expectWizard(const AtPage& atPage = nameNewSet);
    /// A wizard that is left right after a text was typed into a field, which makes no call.
    /// `atPage` comes first.
    void expectHalfTyped(const char* field, const QString& text, const Leave& leave,
                         const AtPage& atPage = {});
    /// The prompt for a code, which is answered or cancelled.
    void expectCode(bool given);
    QStringList setNames();

    std::unique_ptr<GuiAgent> agent;
    std::unique_ptr<MainWindowDriver> driver;
    std::unique_ptr<ModalDriver> modals; ///< from the start on, or if a test makes it before that
};

/// The calls in order with their arguments, except `Release`.
std::vector<std::string> callsOf(const simulator::Simulator& agent);

/// The same without the span of the activity log, which depends on the clock, and without the names
/// for balloons, which only a background window requests.
std::vector<std::string> steadyCallsOf(const simulator::Simulator& agent);

/// An agent's reply with an empty list.
simulator::RawReply emptyList();

/// The number of unreleased references to objects of a class.
int liveObjectsOf(const simulator::Simulator& agent, const std::string& family);

/// The position where two lists of calls first differ, and both calls; empty if they are equal.
QString difference(const std::vector<std::string>& actual,
                   const std::vector<std::string>& expected);

/// The calls of a window's refresh with this set selected; see `steadyCallsOf`.
std::vector<std::string> callsOfRefresh(std::int32_t selectedSet);

/// A wizard's calls when the user enters the mailed code.
std::vector<std::string> callsForCode();

} // namespace support

Q_DECLARE_METATYPE(support::Leave)
