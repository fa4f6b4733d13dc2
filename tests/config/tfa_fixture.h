// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFileDialog>
#include <QTemporaryDir>

#include "config/tfa_code_dlg.h"
#include "config/tfa_user_dlg.h"
#include "config/tfa_users_viewer.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/config/dialog_steps.h"
#include "tests/support/gui_form_texts.h"

/// An agent with two-factor codes and two users, and the user in front of the dialogs about them.
class TFAFixture {
protected:
    void start() {
        agent_ = std::make_unique<support::GuiAgent>();
        agent_->withWorld([](simulator::World& world) {
            world.twoFactor = true;
            world.userEmails = {{"Ada", "Home", "ada@example.org"}, {"bob", "", "bob@example.org"}};
        });
        session::connectToAgent("127.0.0.1:4411", "demo", "demo", 1);
        agent_->clearCallLog();
        modals_ = std::make_unique<support::ModalDriver>();
    }
    void end() {
        QVERIFY(modals_->done());
        modals_.reset();
        QCOMPARE(agent_->violations(), steps::Calls{});
        support::resetSession();
        QCOMPARE(agent_->liveObjects(), steps::Calls{});
        agent_.reset();
    }

    /// Runs the viewer, performs an act in it, and closes it.
    void withViewer(const support::ModalDriver::Act& act) {
        modals_->expect(steps::q("list"), support::isDialog<TFAUsersViewer>,
                        [act](QWidget& viewer) {
                            act(viewer);
                            steps::press(viewer, "btnClose");
                        });
        TFAUsersViewer viewer;
        viewer.exec();
    }
    void expectUser(const support::ModalDriver::Act& act) {
        modals_->expect(steps::q("user"), support::isDialog<TFAUserDlg>, act);
    }
    void expectCode(const support::ModalDriver::Act& act) {
        modals_->expect(steps::q("code"), support::isDialog<TFACodeDlg>, act);
    }
    /// The file dialog, in which this file is chosen.
    void expectFile(const QString& path) {
        modals_->expect(steps::q("file"), support::isDialog<QFileDialog>, [path](QWidget& widget) {
            auto& dialog = static_cast<QFileDialog&>(widget);
            QCOMPARE(dialog.windowTitle(), steps::q("Please choose a .CSV file"));
            QVERIFY(!dialog.testOption(QFileDialog::DontUseNativeDialog));
            support::compareWindowIcon(widget);
            QCOMPARE(dialog.nameFilters(), QStringList(steps::q("CSV Files (*.csv)")));
            support::child<QLineEdit>(dialog, "fileNameEdit").setText(path);
            static_cast<QDialog&>(dialog).accept();
        });
    }
    QString writeFile(const char* name, const QByteArray& bytes) {
        const QString path = folder_.filePath(steps::q(name));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("can't write %s", name);
        return path;
    }

    QTemporaryDir folder_;
    std::unique_ptr<support::GuiAgent> agent_;
    std::unique_ptr<support::ModalDriver> modals_;
};
