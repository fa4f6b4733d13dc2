// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTreeView>
#include <QWizard>

#include "simulator/world/world.h"
#include "tests/tour/photographer.h"
#include "tests/tour/stories.h"
#include "ui/select_row.h"

namespace tour {

namespace {

using simulator::Scenario;
using simulator::World;

// Rows of the default agent's sets.
constexpr int picturesAndVideos = 1;
constexpr int projects = 3;
constexpr int emptySet = 6;

void takeSource(Photographer& photographer, QWizard& wizard) {
    photographer.take(wizard, "new-set-source");
    photographer.expect("credentials");
    click(wizard, "btnConnectAs");
    click(wizard, "btnShowNetDiscovery");
    auto& network = child<QTreeView>(wizard, "treeNetworkDiscovery");
    const QModelIndex windows = network.model()->index(1, 0);
    photographer.refuse("networkDiscovery");
    photographer.expect("box-network");
    network.expand(network.model()->index(2, 0));
    network.expand(windows);
    network.expand(network.model()->index(1, 0, windows));
    network.scrollToTop();
    photographer.take(wizard, "new-set-network");
    click(wizard, "btnShowNetDiscovery");
    photographer.refuse("expandToFullPath");
    photographer.expect("box-computer");
    auto& name = child<QLineEdit>(wizard, "editComputerName");
    QMetaObject::invokeMethod(&name, "editingFinished");
    photographer.refuse("check");
    photographer.expect("box-credentials");
    wizard.next();
}

void takeItems(Photographer& photographer, QWizard& wizard) {
    photographer.take(wizard, "new-set-items");
    click(wizard, "checkEverything");
    photographer.take(wizard, "new-set-items-all");
    click(wizard, "radioCustom");
    auto& tree = child<QTreeView>(wizard, "treeComputer");
    tick(tree, openFirstRows(tree, 2));
    photographer.take(wizard, "new-set-items-custom");
    click(wizard, "radioSpecificLocation");
}

void takeOptions(Photographer& photographer, QWizard& wizard) {
    click(wizard, "chkLocalCopy");
    type(wizard, "editLocalPath", "E:\\LocalStorage");
    click(wizard, "btnLocalPath");
    photographer.take(wizard, "new-set-options");
}

void takeSchedule(Photographer& photographer, QWizard& wizard) {
    photographer.take(wizard, "new-set-schedule");
    click(wizard, "radioMonthly");
    photographer.take(wizard, "new-set-schedule-monthly");
    click(wizard, "radioNotScheduled");
    photographer.take(wizard, "new-set-schedule-none");
}

void takeRetention(Photographer& photographer, QWizard& wizard) {
    photographer.take(wizard, "new-set-retention");
    click(wizard, "checkCleanupFiles");
    photographer.take(wizard, "new-set-retention-cleanup");
}

void takeNewSet(Photographer& photographer) {
    photographer.expect<QWizard>([&](QWizard& wizard) {
        takeSource(photographer, wizard);
        next(wizard);
        takeItems(photographer, wizard);
        next(wizard);
        takeOptions(photographer, wizard);
        next(wizard);
        takeSchedule(photographer, wizard);
        next(wizard);
        takeRetention(photographer, wizard);
        next(wizard);
        type(wizard, "editSetName", "Letters");
        photographer.take(wizard, "new-set-name");
    });
    photographer.run("OnNewBackupSet");

    // Reported before the wizard opens.
    photographer.refuse("neededCredentials");
    photographer.expect("box-needed-login");
    photographer.expect<QWizard>([](QWizard&) {});
    photographer.run("OnNewBackupSet");
    photographer.refuse("getCurrentCredentials");
    photographer.expect("box-current-login");
    photographer.expect<QWizard>([](QWizard&) {});
    photographer.run("OnNewBackupSet");
}

void takeEditWizards(Photographer& photographer) {
    photographer.selectSet(picturesAndVideos);
    photographer.expect<QWizard>([&](QWizard& wizard) {
        photographer.take(wizard, "edit-source");
        next(wizard);
        photographer.take(wizard, "edit-items");
        next(wizard);
        photographer.take(wizard, "edit-options");
    });
    photographer.run("on_btnItems_clicked");
    photographer.refuse("getCredentials");
    photographer.expect("box-login-of-set");
    photographer.expect<QWizard>([](QWizard&) {});
    photographer.run("on_btnItems_clicked");
    photographer.selectSet(projects);
    photographer.run("on_btnSchedule_clicked", "edit-schedule");
    photographer.run("on_btnRetention_clicked", "edit-retention");
}

void takeDelete(Photographer& photographer) {
    photographer.selectSet(projects);
    photographer.expect<QWizard>([&](QWizard& wizard) {
        auto& tree = child<QTreeView>(wizard, "treeSelection");
        tree.setCurrentIndex(openFirstRows(tree, 4));
        tick(tree, tree.currentIndex());
        photographer.take(wizard, "delete-items");
        child<QGroupBox>(wizard, "groupFilter").setChecked(true);
        click(wizard, "checkFrom");
        photographer.take(wizard, "delete-filter");
    });
    photographer.run("OnDelete");
    photographer.expect<QWizard>([&](QWizard& wizard) {
        auto& tree = child<QTreeView>(wizard, "treeSelection");
        tick(tree, openFirstRows(tree, 1));
        photographer.expect("delete-all-question");
        wizard.button(QWizard::FinishButton)->click();
    });
    photographer.run("OnDelete");
}

void takeDestination(Photographer& photographer, QWizard& wizard) {
    child<QComboBox>(wizard, "cmbRestoreReason").setCurrentIndex(2);
    photographer.take(wizard, "restore-location");
    click(wizard, "radioAlternateComputer");
    next(wizard);
    photographer.take(wizard, "restore-computer");
    wizard.back();
    click(wizard, "radioAlternateDir");
    next(wizard);
    photographer.take(wizard, "restore-login");
    photographer.refuse("getPredefinedItems");
    photographer.expect("box-restore-directory");
    next(wizard);
    wizard.back();
    next(wizard);
    click(wizard, "btnRestoreTo");
    photographer.take(wizard, "restore-directory");
}

void takeRestore(Photographer& photographer) {
    photographer.selectSet(projects);
    photographer.expect<QWizard>([&](QWizard& wizard) {
        auto& tree = child<QTreeView>(wizard, "treeSelection");
        tree.setCurrentIndex(openFirstRows(tree, 4));
        tick(tree, tree.currentIndex());
        photographer.take(wizard, "restore-items");
        auto& files = child<QListView>(wizard, "listSelection");
        files.setCurrentIndex(files.model()->index(0, 0, files.rootIndex()));
        photographer.expect<QDialog>([&](QDialog& generations) {
            ui::selectRow(child<QTableView>(generations, "listGenerations"), 0);
            photographer.take(generations, "restore-generations");
        });
        click(wizard, "buttonGenerations");
        click(wizard, "checkFilter");
        click(wizard, "checkFrom");
        photographer.take(wizard, "restore-filter");
        tick(tree, openFirstRows(tree, 1));
        next(wizard);
        takeDestination(photographer, wizard);
    });
    photographer.run("OnRestore");
    photographer.selectSet(emptySet);
    photographer.run("OnRestore", "box-no-data");
}

void takeSsh(Photographer& photographer) {
    photographer.expect<QWizard>([&](QWizard& wizard) {
        photographer.take(wizard, "ssh-source");
        photographer.expect<QDialog>([&](QDialog& dialog) {
            photographer.take(dialog, "ssh-password");
            click(dialog, "radioIdentity");
            photographer.take(dialog, "ssh-identity");
        });
        click(wizard, "btnConnectAs");
        photographer.expect("ssh-sudo");
        click(wizard, "btnSudo");
        photographer.expect<QDialog>([&](QDialog& dialog) {
            photographer.take(dialog, "ssh-access");
            child<QComboBox>(dialog, "comboInterface").setCurrentIndex(2);
            type(dialog, "editPath", "");
            photographer.expect("box-ssh-access");
            click(dialog, "btnOK");
        });
        click(wizard, "btnSSHAccess");
    });
    photographer.run("OnNewBackupSet");
}

} // namespace

void takeWizards(Album& album) {
    {
        Photographer photographer(album);
        photographer.logIn();
        takeNewSet(photographer);
        takeEditWizards(photographer);
        takeDelete(photographer);
        takeRestore(photographer);
    }
    Photographer photographer(album, {.scenario = Scenario::Unix}, [](World& world) {
        world.network.local()->kind = simulator::LoginKind::Ssh;
    });
    photographer.logIn();
    takeSsh(photographer);
}

} // namespace tour
