// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// A plug-in of Qt that an unchanged client loads when QT_QPA_GENERIC_PLUGINS names it, as in
// "tarnstory:FOLDER", with the folder for the pictures. It plays one user from the login to the
// end.
#include <memory>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QGenericPlugin>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QWizard>

#include "tests/end_to_end/player.h"

namespace end_to_end {

namespace {

constexpr int timeForPainting = 3; // looks

QString q(const char* text) {
    return QString::fromLatin1(text);
}

template <class Widget>
Widget* topLevel() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Widget*>(widget); found && found->isVisible())
            return found;
    return nullptr;
}

template <class Widget>
Widget* modal() {
    return qobject_cast<Widget*>(QApplication::activeModalWidget());
}

int rows(const char* table) {
    auto* window = topLevel<QMainWindow>();
    auto* view = window ? window->findChild<QTableView*>(q(table)) : nullptr;
    return view && view->model() ? view->model()->rowCount() : 0;
}

/// From the event loop, as what it leads to may be modal.
bool trigger(const char* name) {
    auto* window = topLevel<QMainWindow>();
    auto* action = window ? window->findChild<QAction*>(q(name)) : nullptr;
    if (!action || !action->isEnabled() || modal<QWidget>())
        return false;
    QTimer::singleShot(0, action, &QAction::trigger);
    return true;
}

/// Likewise.
bool click(QAbstractButton* button) {
    if (!button || !button->isVisible() || !button->isEnabled())
        return false;
    QTimer::singleShot(0, button, &QAbstractButton::click);
    return true;
}

bool select(int row) {
    auto* view = topLevel<QMainWindow>()->findChild<QTableView*>(q("backupSetsView"));
    view->selectRow(row);
    return true;
}

/// True when it has been asked so often, so that what appeared has been painted.
Player::Step looks(int count) {
    return [count]() mutable { return --count <= 0; };
}

void logIn(Player& player) {
    player.then(q("the login dialog"), [&player] {
        auto* dialog = modal<QDialog>();
        auto* name = dialog ? dialog->findChild<QLineEdit*>(q("lineEditUserName")) : nullptr;
        if (!name)
            return false;
        name->setText(q("demo"));
        dialog->findChild<QLineEdit*>(q("lineEditPassword"))->setText(q("demo"));
        player.take(*dialog, q("login"));
        return click(dialog->findChild<QPushButton*>(q("buttonLogin")));
    });
    player.then(q("the list of sets"), [] { return rows("backupSetsView") > 0; });
    player.then(q("its painting"), looks(timeForPainting));
}

void backUp(Player& player) {
    player.then(q("a set to select"), [] { return select(0); });
    player.then(q("the details"), looks(timeForPainting));
    player.then(q("the main window"), [&player] {
        player.take(*topLevel<QMainWindow>(), q("main-window"));
        return true;
    });
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

/// One step for all pages: true when the wizard has been finished.
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

class StoryPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "story.json")
public:
    QObject* create(const QString&, const QString& specification) override {
        auto player = std::make_unique<Player>(specification);
        const auto before = std::make_shared<int>(0);
        logIn(*player);
        backUp(*player);
        readAbout(*player);
        makeSet(*player, before);
        deleteSet(*player, before);
        quit(*player);
        player->play();
        return player.release();
    }
};

} // namespace

} // namespace end_to_end

#include "story.moc"
