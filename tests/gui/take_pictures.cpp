// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Takes pictures of every wizard page and every dialog that a wizard or a menu opens, with a
// simulated agent behind them. Best on a real display:
//   xvfb-run -s "-screen 0 1600x1000x24" take_pictures docs/pictures
#include <cstdio>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTranslator>
#include <QTreeView>
#include <QWizard>

#include "config/tfa_code_dlg.h"
#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"

namespace {

using support::child;
using support::isDialog;

// Rows of the default agent's sets.
constexpr int kPicturesAndVideos = 1;
constexpr int kProjects = 3;
constexpr int kSetWithoutFiles = 6;

QString q(const char* text) {
    return QString::fromUtf8(text);
}

simulator::Options agentWithCodes(simulator::Scenario scenario) {
    simulator::Options options;
    options.scenario = scenario;
    options.twoFactorCode = "314159";
    return options;
}

/// A logged in main window, and a photographer in front of it.
class Photographer {
public:
    Photographer(const QDir& folder, simulator::Scenario scenario,
                 const std::function<void(simulator::World&)>& change = {})
        : folder_(folder)
        , agent_(agentWithCodes(scenario)) {
        if (change)
            agent_.withWorld(change);
        driver_.logIn(agent_);
    }

    SimpleGUIMainWindow& window() { return driver_.window(); }
    void selectSet(int row) { driver_.sets().selectRow(row); }

    /// Runs a slot of the window, and has met all that was to come when it returns.
    void run(const char* slot) {
        QMetaObject::invokeMethod(&window(), slot);
        end();
    }
    void end() {
        if (!modals_.done())
            qFatal("Not all of the dialogs came");
    }

    template <class Dialog>
    void expect(const std::function<void(Dialog&)>& act) {
        modals_.expect(q(Dialog::staticMetaObject.className()), isDialog<Dialog>,
                       [act](QWidget& widget) {
                           act(static_cast<Dialog&>(widget));
                           if (widget.isVisible())
                               widget.close();
                       });
    }
    /// A picture of the dialog that the next step opens.
    void expectOnly(const char* name) {
        expect<QDialog>([this, name](QDialog& dialog) { take(dialog, name); });
    }

    void take(QWidget& shown, const char* name) {
        // What blinks or comes late has come then.
        QTest::qWait(200);
        const QString path = folder_.filePath(q(name) + q(".png"));
        if (!shown.grab().save(path))
            qFatal("Can't write %s", qPrintable(path));
        std::printf("%s\n", qPrintable(path));
    }

private:
    QDir folder_;
    support::GuiAgent agent_;
    support::MainWindowDriver driver_;
    support::ModalDriver modals_;
};

void next(QWizard& wizard) {
    const int page = wizard.currentId();
    wizard.next();
    if (wizard.currentId() == page)
        qFatal("The wizard stays on page %d", page);
}

/// What a tree shows below its first row, below the first row of that and so on; the last of them.
QModelIndex openFirstRows(QTreeView& tree, int levels) {
    QModelIndex index;
    for (int i = 0; i < levels; ++i) {
        index = tree.model()->index(0, 0, index);
        tree.expand(index);
    }
    tree.scrollToTop();
    return index;
}

/// Ticks a row that is on the screen.
void tick(QTreeView& tree, const QModelIndex& index) {
    if (!tree.model()->setData(index, Qt::Checked, Qt::CheckStateRole))
        qFatal("The row can't be ticked");
}

void takeNewSet(Photographer& photographer) {
    photographer.expect<QWizard>([&](QWizard& wizard) {
        photographer.take(wizard, "new-set-source");
        child<QPushButton>(wizard, "btnShowNetDiscovery").click();
        openFirstRows(child<QTreeView>(wizard, "treeNetworkDiscovery"), 2);
        photographer.take(wizard, "new-set-network");
        child<QPushButton>(wizard, "btnShowNetDiscovery").click();
        next(wizard);
        photographer.take(wizard, "new-set-items");
        child<QCheckBox>(wizard, "checkEverything").click();
        child<QRadioButton>(wizard, "radioCustom").click();
        auto& tree = child<QTreeView>(wizard, "treeComputer");
        tick(tree, openFirstRows(tree, 2));
        photographer.take(wizard, "new-set-items-custom");
        child<QRadioButton>(wizard, "radioSpecificLocation").click();
        next(wizard);
        child<QCheckBox>(wizard, "chkLocalCopy").click();
        child<QLineEdit>(wizard, "editLocalPath").setText(q("E:\\LocalStorage"));
        child<QPushButton>(wizard, "btnLocalPath").click();
        photographer.take(wizard, "new-set-options");
        next(wizard);
        photographer.take(wizard, "new-set-schedule");
        child<QRadioButton>(wizard, "radioMonthly").click();
        photographer.take(wizard, "new-set-schedule-monthly");
        next(wizard);
        photographer.take(wizard, "new-set-retention");
        next(wizard);
        child<QLineEdit>(wizard, "editSetName").setText(q("Letters"));
        photographer.take(wizard, "new-set-name");
    });
    photographer.run("OnNewBackupSet");
}

void takeEditWizards(Photographer& photographer) {
    photographer.selectSet(kPicturesAndVideos);
    photographer.expect<QWizard>([&](QWizard& wizard) {
        photographer.take(wizard, "edit-source");
        next(wizard);
        photographer.take(wizard, "edit-items");
        next(wizard);
        photographer.take(wizard, "edit-options");
    });
    photographer.run("on_btnItems_clicked");
    photographer.selectSet(kProjects);
    photographer.expectOnly("edit-schedule");
    photographer.run("on_btnSchedule_clicked");
    photographer.expectOnly("edit-retention");
    photographer.run("on_btnRetention_clicked");
    photographer.expect<QWizard>([&](QWizard& wizard) {
        auto& tree = child<QTreeView>(wizard, "treeSelection");
        tree.setCurrentIndex(openFirstRows(tree, 4));
        tick(tree, tree.currentIndex());
        photographer.take(wizard, "delete-items");
    });
    photographer.run("OnDelete");
    photographer.selectSet(kSetWithoutFiles);
    photographer.expectOnly("delete-question");
    photographer.run("OnDelete");
}

void takeTwoFactor(Photographer& photographer) {
    photographer.expectOnly("code");
    TFACodeDlg(2, &photographer.window()).exec();
    photographer.end();
    photographer.expect<QDialog>([&](QDialog& users) {
        child<QTableView>(users, "tableUsers").selectRow(0);
        photographer.take(users, "users");
        photographer.expectOnly("user");
        child<QPushButton>(users, "btnEdit").click();
    });
    photographer.run("on_actionTFASettings_triggered");
}

void takeWindowsLogin(Photographer& photographer) {
    photographer.expect<QWizard>([&](QWizard& wizard) {
        photographer.expectOnly("credentials");
        child<QPushButton>(wizard, "btnConnectAs").click();
    });
    photographer.run("OnNewBackupSet");
}

void takeSshLogin(Photographer& photographer) {
    photographer.expect<QWizard>([&](QWizard& wizard) {
        photographer.take(wizard, "ssh-source");
        photographer.expect<QDialog>([&](QDialog& dialog) {
            photographer.take(dialog, "ssh-password");
            child<QRadioButton>(dialog, "radioIdentity").click();
            photographer.take(dialog, "ssh-identity");
        });
        child<QPushButton>(wizard, "btnConnectAs").click();
        photographer.expectOnly("ssh-sudo");
        child<QPushButton>(wizard, "btnSudo").click();
        photographer.expectOnly("ssh-access");
        child<QPushButton>(wizard, "btnSSHAccess").click();
    });
    photographer.run("OnNewBackupSet");
}

void takeConfiguration(Photographer& photographer) {
    const std::pair<const char*, const char*> dialogs[]{
        {"on_actionAdmin_triggered", "admin"},
        {"on_action_Recovery_triggered", "recovery"},
        {"on_actionRegister_triggered", "register"},
        {"on_actionRegistration_Info_triggered", "registration"},
        {"on_actionLDAP_Account_triggered", "ldap"}};
    for (const auto& [slot, name] : dialogs) {
        photographer.expectOnly(name);
        photographer.run(slot);
    }
}

void takePictures(const QDir& folder) {
    {
        Photographer photographer(folder, simulator::Scenario::Default);
        takeNewSet(photographer);
        takeEditWizards(photographer);
        takeTwoFactor(photographer);
        takeWindowsLogin(photographer);
        takeConfiguration(photographer);
    }
    Photographer photographer(folder, simulator::Scenario::Unix, [](simulator::World& world) {
        world.network.local()->kind = simulator::LoginKind::Ssh;
    });
    takeSshLogin(photographer);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    resources::initPictures();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "Usage: take_pictures <folder> [<translation file>]\n");
        return 2;
    }
    QTranslator translator;
    const QString none = QLatin1String("");
    if (arguments.size() > 2 && translator.load(arguments.at(2), none, none, none))
        QCoreApplication::installTranslator(&translator);
    takePictures(QDir(arguments.at(1)));
    return 0;
}
