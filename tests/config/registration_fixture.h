// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTemporaryDir>

#include "config/init_clnt_cfg_dlg.h"
#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/config/registration_steps.h"

/// A main window with a registered agent, and the user in front of the registration dialog.
class RegistrationFixture {
protected:
    void start() {
        resources::initPictures();
        test_.start();
    }

    support::ModalDriver& modals() { return *test_.modals; }
    void expectDialog(const support::ModalDriver::Act& act) {
        modals().expect(steps::q("registration"), support::isDialog<InitClntCfgDlg>, act);
    }
    void expectSaved() {
        steps::expectNews(modals(), "Configuration",
                          "Tarn-Client Registration Information is saved successfully.");
    }
    void modify() { test_.run("on_actionRegistration_Info_triggered"); }
    /// Runs the check with an agent that has no customer data.
    void firstRun() {
        change([](simulator::World& world) { world.customer = {}; });
        test_.agent->clearCallLog();
        test_.driver->window().checkInitialConfiguration();
        QVERIFY(modals().done());
    }
    void compareCalls(const steps::Calls& expected) {
        QCOMPARE(support::callsOf(*test_.agent), expected);
    }
    void change(const std::function<void(simulator::World&)>& visit) {
        test_.agent->withWorld(visit);
    }
    /// Presses the file button, and chooses a file with this name and these bytes.
    void import(QWidget& dialog, const char* name, const QByteArray& bytes, bool remove = false) {
        write(name, bytes);
        steps::expectCriFile(modals(), folder_.filePath(steps::q(name)), remove);
        steps::press(dialog, "btnBrowse");
    }
    /// The same, with what a box then says; "%1" is the path.
    void importInVain(QWidget& dialog, const char* name, const QByteArray& bytes,
                      const char* refusal) {
        write(name, bytes);
        const QString path = folder_.filePath(steps::q(name));
        steps::expectCriFile(modals(), path, false);
        modals().expectErrorBox(steps::q("Configuration Error"), steps::q(refusal).arg(path));
        steps::press(dialog, "btnBrowse");
    }
    void write(const char* name, const QByteArray& bytes) {
        QFile file(folder_.filePath(steps::q(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    support::WizardTest test_;
    /// Like the home of a user whose name no ANSI code page can encode.
    QTemporaryDir folder_{QDir::temp().filePath(steps::q("Jürgen Ωmega-XXXXXX"))};
};
