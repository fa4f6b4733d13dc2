// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The story of a user who works with the agent.
#include <memory>

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPalette>
#include <QPushButton>
#include <QStyle>
#include <QTableView>
#include <QTimer>
#include <QWizard>

#include "tests/end_to_end/screen.h"
#include "tests/end_to_end/stories.h"

namespace end_to_end {

namespace {

constexpr int timeForPainting = 3; // in looks

bool select(int row) {
    auto* view = topLevel<QMainWindow>()->findChild<QTableView*>(q("backupSetsView"));
    view->selectRow(row);
    return true;
}

void logIn(Player& player) {
    player.then(q("the login dialog"), [] {
        auto* dialog = modal<QDialog>();
        auto* name = dialog ? dialog->findChild<QLineEdit*>(q("lineEditUserName")) : nullptr;
        if (!name)
            return false;
        auto* box = dialog->findChild<QCheckBox*>(q("chkSSPILogin"));
        if (box->isVisible() && box->isChecked())
            box->click();
        name->setText(q("demo"));
        dialog->findChild<QLineEdit*>(q("lineEditPassword"))->setText(q("demo"));
        return true;
    });
    player.then(q("its painting"), looks(timeForPainting));
    player.then(q("the login button"), [&player] {
        auto* dialog = modal<QDialog>();
        player.take(*dialog, q("login"));
        return click(dialog->findChild<QPushButton*>(q("buttonLogin")));
    });
    player.then(q("the list of sets"), [] { return rows("backupSetsView") > 0; });
    player.then(q("its painting"), looks(timeForPainting));
}

void seeMainWindow(Player& player) {
    player.then(q("a set to select"), [] { return select(0); });
    player.then(q("the details"), looks(timeForPainting));
    player.then(q("the main window"), [&player] {
        player.take(*topLevel<QMainWindow>(), q("main-window"));
        player.note(q("style: ") + QApplication::style()->objectName());
        return true;
    });
}

void backUp(Player& player) {
    player.then(q("the backup command"), [] { return trigger("actionBackup_Now"); });
    player.then(q("the running backup"), [&player] {
        if (rows("tableCurrentActivities") == 0)
            return false;
        player.take(*topLevel<QMainWindow>(), q("backup-running"));
        return true;
    });
    player.then(q("the end of the backup"), [] { return rows("tableCurrentActivities") == 0; });
}

void readAbout(Player& player) {
    player.then(q("the about command"), [] { return trigger("action_About"); });
    player.then(q("the about box"), [&player] {
        auto* dialog = modal<QDialog>();
        if (!dialog)
            return false;
        player.take(*dialog, q("about"));
        QTimer::singleShot(0, dialog, &QDialog::reject);
        return true;
    });
    player.then(q("the end of the about box"), [] { return !modal<QWidget>(); });
}

void noteWayBack(Player& player, const QWizard& wizard) {
    const auto* back = wizard.button(QWizard::BackButton);
    player.note(q("way back: ") + (back->isVisible() ? back->text() : q("none")));
}

/// One step for all pages: returns true once the wizard's last button has been clicked.
Player::Step throughPages(Player& player) {
    return [&player, seen = -1]() mutable {
        auto* wizard = modal<QWizard>();
        if (!wizard)
            return false;
        if (wizard->currentId() == seen)
            return false;
        if (auto* name = wizard->currentPage()->findChild<QLineEdit*>(q("editSetName")))
            name->setText(q("Letters"));
        player.take(*wizard, q("new-set-%1").arg(wizard->currentId()));
        if (wizard->visitedIds().size() == 2)
            noteWayBack(player, *wizard);
        seen = wizard->currentId();
        const bool last = wizard->currentPage()->isFinalPage();
        const auto button = last ? QWizard::FinishButton : QWizard::NextButton;
        return click(wizard->button(button)) && last;
    };
}

void makeSet(Player& player, const std::shared_ptr<int>& before) {
    player.then(q("the new set command"), [before] {
        *before = rows("backupSetsView");
        return trigger("actionNew_Backup_Set");
    });
    player.then(q("the new set wizard"), throughPages(player));
    player.then(q("the new set"), [before] { return rows("backupSetsView") == *before + 1; });
    player.then(q("its painting"), looks(timeForPainting));
}

void deleteSet(Player& player, const std::shared_ptr<int>& before) {
    player.then(q("the new set to select"), [before] { return select(*before); });
    player.then(q("the details"), looks(timeForPainting));
    player.then(q("the delete command"), [] { return trigger("actionDeleteFromOnline"); });
    player.then(q("the question"), [&player] {
        auto* box = modal<QMessageBox>();
        if (!box)
            return false;
        player.take(*box, q("delete-question"));
        return click(box->button(QMessageBox::Yes));
    });
    player.then(q("the end of the set"), [before] { return rows("backupSetsView") == *before; });
}

void quit(Player& player) {
    player.then(q("the quit command"), [] { return trigger("actionQuit"); });
}

} // namespace

void playWork(Player& player) {
    const auto before = std::make_shared<int>(0);
    logIn(player);
    seeMainWindow(player);
    backUp(player);
    readAbout(player);
    makeSet(player, before);
    deleteSet(player, before);
    quit(player);
}

void playLook(Player& player) {
    logIn(player);
    seeMainWindow(player);
    player.then(q("the colours"), [&player] {
        const QPalette colours = topLevel<QMainWindow>()->palette();
        const bool dark =
            colours.window().color().lightness() < colours.windowText().color().lightness();
        player.note(q(dark ? "dark" : "light"));
        return true;
    });
    quit(player);
}

void playStay(Player& player) {
    logIn(player);
    player.then(q("the about command"), [] { return trigger("action_About"); });
    player.then(q("the about box"), [&player] {
        if (!modal<QDialog>())
            return false;
        player.note(q("logged in"));
        return true;
    });
}

} // namespace end_to_end
