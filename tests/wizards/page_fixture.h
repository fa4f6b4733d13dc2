// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QString>
#include <QWizard>
#include <QtTest>

#include "api/client_connection.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/simulator.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_modal_driver.h"
#include "ui/error_box.h"

/// Shared by tests of wizard pages: an agent with a session, and its sets.
class PageFixture {
public:
    using Calls = std::vector<std::string>;
    using Set = boost::shared_ptr<hessiancln::BackupSet>;

    // Sets of the default world.
    static constexpr int documents = 1;
    static constexpr int pictures = 2;
    static constexpr int mail = 3;
    static constexpr int projects = 4;
    static constexpr int taxReturns = 6; ///< without a rule
    static constexpr int inventory = 7;  ///< of a database
    static constexpr int music = 8;      ///< without a schedule

    void start(simulator::Scenario scenario = simulator::Scenario::Default) {
        resources::initPictures();
        simulator::Options options;
        options.scenario = scenario;
        agent_ = std::make_unique<simulator::Simulator>(options);
        session::connectToAgent(agent_->address(), "demo", "demo", 1);
        agent_->clearCallLog();
    }

    /// All references given to pages must have been released by now, leaving only the session.
    void end() {
        // Deletes replaced trees.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const std::size_t held = agent_->liveObjects().size();
        support::resetSession();
        QCOMPARE(held, std::size_t{1});
        QCOMPARE(agent_->liveObjects(), Calls{});
        QCOMPARE(agent_->violations(), Calls{});
        QCOMPARE(agent_->waitingInjections(), std::size_t{0});
        agent_.reset();
    }

    simulator::Simulator& agent() { return *agent_; }

    /// The calls since the last time, or since the last set was opened, except releases: `end`
    /// checks that each reference is released.
    Calls takeCalls() {
        Calls calls = agent_->callTexts();
        agent_->clearCallLog();
        std::erase_if(calls, [](const std::string& call) { return call.ends_with(".Release()"); });
        return calls;
    }

    Set openSet(int id) {
        Set set = session::getConnection()->backup_set(id);
        agent_->clearCallLog();
        return set;
    }

    /// Changes the agent's state of a set.
    void change(int id,
                const std::function<void(simulator::BackupSetState&, simulator::World&)>& act) {
        agent_->withWorld([&](simulator::World& world) { act(*world.set(id), world); });
    }

private:
    std::unique_ptr<simulator::Simulator> agent_;
};

/// A page shown alone in a plain wizard.
template <class Page>
class ShownPage {
public:
    ShownPage() {
        wizard_.addPage(page_);
        wizard_.show();
    }
    Page* operator->() { return page_; }
    Page& operator*() { return *page_; }

    template <class Widget>
    Widget& child(const char* name) {
        return support::child<Widget>(*page_, name);
    }

private:
    QWizard wizard_;
    Page* page_ = new Page; ///< owned by the wizard
};

/// The text of the error that the action throws.
template <class Action>
QString errorOf(Action action) {
    try {
        action();
    } catch (const std::exception& error) {
        return ui::errorText(error);
    }
    return QStringLiteral("(no error)");
}
