// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_waiting_fixture.h"

#include <QCoreApplication>
#include <QTest>

#include "resources/pictures.h"
#include "tests/support/gui_wait.h"

namespace support {

void WaitingFixture::initTestCase() {
    resources::initPictures();
}

void WaitingFixture::init() {
    agent_ = std::make_unique<GuiAgent>();
    startWith(quickTimes);
}

void WaitingFixture::cleanup() {
    QVERIFY(!waitingPanel());
    driver_.reset();
    gate_.reset();
    QCOMPARE(agent_->violations(), Calls{});
    agent_.reset();
}

void WaitingFixture::startWith(const app::CallGate::Times& times) {
    driver_.reset();
    gate_.reset();
    gate_ = std::make_unique<app::CallGate>(times);
    driver_ = std::make_unique<MainWindowDriver>();
    driver_->window().keepAliveBy(*gate_);
    driver_->logIn(*agent_);
    endChain();
}

void WaitingFixture::beSilent(const char* method) {
    agent_->inject(method, simulator::Silence{});
}

void WaitingFixture::endChain() {
    QCoreApplication::sendPostedEvents(gate_.get());
}

} // namespace support
