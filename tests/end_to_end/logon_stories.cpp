// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The stories of logins as the system's user, and of logins without a ticket.
#include <memory>

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>

#include "tests/end_to_end/screen.h"
#include "tests/end_to_end/stories.h"

namespace end_to_end {

namespace {

constexpr int timeForPainting = 3; // in looks

QDialog* loginDialog() {
    auto* dialog = modal<QDialog>();
    return dialog && dialog->objectName() == q("LoginCheck") ? dialog : nullptr;
}

void noteWindow(Player& player) {
    const auto* window = topLevel<QMainWindow>();
    player.note(q("title: ") + window->windowTitle());
    player.note(q("status: ") + window->statusBar()->currentMessage());
}

void noteDialog(Player& player, const QDialog& dialog) {
    const auto* box = dialog.findChild<QCheckBox*>(q("chkSSPILogin"));
    const auto* fields = dialog.findChild<QGroupBox*>(q("groupLoginInfo"));
    player.note(q("box: ") + q(box->isVisible() ? "there" : "not there") +
                q(box->isChecked() ? ", checked" : ", not checked"));
    player.note(q("name and password: ") + q(fields->isEnabled() ? "enabled" : "disabled"));
}

void seeSets(Player& player, const char* how) {
    player.then(q("the list of sets ") + q(how), [] { return rows("backupSetsView") > 0; });
    player.then(q("its painting"), looks(timeForPainting));
    player.then(q("the main window"), [&player, how] {
        player.note(q("logged in ") + q(how));
        noteWindow(player);
        player.take(*topLevel<QMainWindow>(),
                    q("logged-in-") + QString(q(how)).replace(QLatin1Char(' '), QLatin1Char('-')));
        return true;
    });
}

void logOut(Player& player) {
    player.then(q("the logout command"), [] { return trigger("actionLogout"); });
    player.then(q("the end of the session"), [] { return rows("backupSetsView") == 0; });
}

void openDialog(Player& player) {
    player.then(q("the login command"), [] { return trigger("actionLogin"); });
}

void seeDialog(Player& player, const char* picture) {
    player.then(q("the login dialog"), [] { return loginDialog() != nullptr; });
    player.then(q("its painting"), looks(timeForPainting));
    player.then(q("the contents of the dialog"), [&player, picture] {
        noteDialog(player, *loginDialog());
        noteWindow(player);
        player.take(*loginDialog(), q(picture));
        return true;
    });
}

void pressLogin(Player& player) {
    player.then(q("the login button"),
                [] { return click(loginDialog()->findChild<QPushButton*>(q("buttonLogin"))); });
}

void givePassword(Player& player) {
    player.then(q("the fields"), [&player] {
        auto* dialog = loginDialog();
        auto* box = dialog->findChild<QCheckBox*>(q("chkSSPILogin"));
        if (box->isVisible() && box->isChecked())
            box->click();
        noteDialog(player, *dialog);
        dialog->findChild<QLineEdit*>(q("lineEditUserName"))->setText(q("demo"));
        dialog->findChild<QLineEdit*>(q("lineEditPassword"))->setText(q("demo"));
        return true;
    });
    pressLogin(player);
}

/// Records an error box, or the window with or without a session.
void seeOutcome(Player& player) {
    player.then(q("the reply"), looks(timeForPainting));
    player.then(q("the outcome"), [&player] {
        if (auto* box = modal<QMessageBox>()) {
            player.note(q("refused: ") + box->windowTitle() + q(": ") + box->text());
            player.take(*box, q("logon-refused"));
            return click(box->buttons().constFirst());
        }
        if (modal<QWidget>())
            return false;
        player.note(q(rows("backupSetsView") > 0 ? "logged in" : "no session"));
        noteWindow(player);
        return true;
    });
}

/// Opens the dialog unless it is still open.
void seeDialogAgain(Player& player) {
    player.then(q("the dialog again"), [] {
        if (!modal<QWidget>())
            trigger("actionLogin");
        return loginDialog() != nullptr;
    });
}

void quit(Player& player) {
    player.then(q("the quit command"), [] { return trigger("actionQuit"); });
}

} // namespace

void playTray(Player& player) {
    player.then(q("the sets behind the hidden window"), [&player] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (!qobject_cast<QMainWindow*>(widget) || widget->isVisible())
                continue;
            const auto* sets = widget->findChild<QTableView*>(q("backupSetsView"));
            if (!sets->model() || sets->model()->rowCount() == 0)
                continue;
            player.note(q("logged in"));
            return true;
        }
        return false;
    });
}

void playTicket(Player& player) {
    seeSets(player, "at the start");
    logOut(player);
    openDialog(player);
    seeDialog(player, "login-with-ticket");
    pressLogin(player);
    seeSets(player, "by the box");
    logOut(player);
    openDialog(player);
    player.then(q("the login dialog"), [] { return loginDialog() != nullptr; });
    givePassword(player);
    seeSets(player, "by a password");
    quit(player);
}

void playNoTicket(Player& player) {
    seeDialog(player, "login-without-ticket");
    pressLogin(player);
    seeOutcome(player);
    seeDialogAgain(player);
    givePassword(player);
    seeSets(player, "by a password");
    quit(player);
}

void playLogon(Player& player) {
    const auto asked = std::make_shared<bool>(false);
    player.then(q("the end of the start-up"), [asked] {
        *asked = loginDialog() != nullptr;
        return *asked || rows("backupSetsView") > 0;
    });
    player.then(q("its painting"), looks(timeForPainting));
    player.then(q("the contents of the dialog"), [&player, asked] {
        if (!*asked)
            return true;
        player.note(q("asked"));
        noteWindow(player);
        noteDialog(player, *loginDialog());
        player.take(*loginDialog(), q("logon-asked"));
        return click(loginDialog()->findChild<QPushButton*>(q("buttonLogin")));
    });
    seeOutcome(player);
    player.then(q("the end"), [] {
        if (auto* dialog = loginDialog())
            click(dialog->findChild<QPushButton*>(q("buttonQuit")));
        return trigger("actionQuit");
    });
}

} // namespace end_to_end
