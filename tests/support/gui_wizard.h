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

/// What a user does on a page before going on.
using AtPage = std::function<void(QWizardPage&)>;

/// Goes through the pages of an open wizard and finishes it. A wizard that doesn't let the user go
/// on is cancelled. Whether it came to its end.
bool finishWizard(QWidget& wizard, const AtPage& atPage = {});

/// Goes on by so many pages and cancels.
void cancelWizard(QWidget& wizard, int page, const AtPage& atPage = {});

/// Types the name "  New one " on the page that wants a name.
void nameNewSet(QWizardPage& page);

/// A main window that is logged in to an agent, and the user in front of it.
class WizardTest {
public:
    /// `change` is done to the agent before the login.
    void start(simulator::Scenario scenario = simulator::Scenario::Default,
               const std::function<void(simulator::World&)>& change = {});
    /// Ends everything; what is left over fails the test.
    void end();

    /// Runs a slot of the window; the agent's log holds what that led to. Each reference that it
    /// got has to be released at the end.
    void run(const char* slot);
    /// A wizard that can be finished.
    void expectWizard(const AtPage& atPage = nameNewSet);
    /// The question for a code, which is answered or cancelled.
    void expectCode(bool given);
    QStringList setNames();

    std::unique_ptr<GuiAgent> agent;
    std::unique_ptr<MainWindowDriver> driver;
    std::unique_ptr<ModalDriver> modals; ///< from the start on, or if a test makes it before that
};

/// The calls in order with their arguments, without those of `Release`.
std::vector<std::string> callsOf(const simulator::Simulator& agent);

/// The same without the span of the activity log, which follows the clock, and without the names in
/// balloons, which only a window in the background shows.
std::vector<std::string> steadyCallsOf(const simulator::Simulator& agent);

/// An agent's answer that there is nothing in the list.
simulator::RawReply emptyList();

/// How many references to objects of a class aren't released.
int liveObjectsOf(const simulator::Simulator& agent, const std::string& family);

/// Where two lists of calls first differ, and both calls; empty if they are the same.
QString difference(const std::vector<std::string>& actual,
                   const std::vector<std::string>& expected);

/// How a window with this set selected brings itself up to date; see `steadyCallsOf`.
std::vector<std::string> callsOfRefresh(std::int32_t selectedSet);

/// What a wizard asks the agent when the user gives the code that was mailed.
std::vector<std::string> callsForCode();

} // namespace support
