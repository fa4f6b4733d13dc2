// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QSemaphore>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QWizard>

#include "app/about_dlg.h"
#include "app/backup_set_view_item.h"
#include "app/call_gate.h"
#include "app/event_log_viewer.h"
#include "app/login_check.h"
#include "app/start_up.h"
#include "simulator/world/world.h"
#include "tests/support/gui_wait.h"
#include "tests/support/scripted_security_operations.h"
#include "tests/support/security_operations_override.h"
#include "tests/tour/photographer.h"
#include "tests/tour/stories.h"
#include "ui/screen_fit.h"
#include "ui/select_row.h"

namespace tour {

namespace {

using simulator::Scenario;
using simulator::World;

// Rows of the default agent's sets.
constexpr int documents = 0;
constexpr int picturesExpression = 1;
constexpr int emptySet = 6;

void takeLogin(Album& album) {
    {
        Photographer photographer(album);
        photographer.take(photographer.window(), "main-window-logged-out");
        photographer.run("on_action_About_triggered", "about-logged-out");
        photographer.expect<LoginCheck>([&](LoginCheck& login) {
            type(login, "lineEditUserName", "anna:10.0.0.7");
            photographer.take(login, "login-without-domains");
        });
        photographer.run("OnConnect");
    }
    {
        support::ScriptedSecurityOperations security;
        const support::SecurityOperationsOverride inUse(&security);
        Photographer photographer(album);
        photographer.expect<LoginCheck>([&](LoginCheck& login) {
            // Not the account of the user who takes the pictures.
            type(login, "lineEditUserName", "anna");
            photographer.take(login, "login-current-user");
        });
        photographer.run("OnConnect");
    }
    Photographer photographer(album, {.domains = {"NORTH", "SOUTH"}});
    photographer.expect<LoginCheck>([&](LoginCheck& login) {
        type(login, "lineEditUserName", "anna");
        type(login, "lineEditPassword", "wrong");
        photographer.take(login, "login");
        photographer.expect("box-login");
        click(login, "buttonLogin");
    });
    photographer.run("OnConnect");
}

void takeMenu(Photographer& photographer, QMenu& menu, const char* screen) {
    menu.popup(photographer.window().mapToGlobal({40, 60}));
    photographer.take(menu, screen);
    menu.close();
}

void takeMenus(Photographer& photographer) {
    const std::pair<const char*, const char*> menus[]{{"menu_Application", "menu-application"},
                                                      {"menu_Backup_Set", "menu-backup-set"},
                                                      {"menu_Configuration", "menu-configuration"},
                                                      {"menu_View", "menu-view"},
                                                      {"menu_Help", "menu-help"},
                                                      {"menuTray", "menu-tray"}};
    for (const auto& [menu, screen] : menus)
        takeMenu(photographer, child<QMenu>(photographer.window(), menu), screen);

    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 4},
                            photographer.window().mapToGlobal({40, 160}));
    QCoreApplication::sendEvent(&photographer.driver().card(documents), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        qFatal("A card has no menu");
    photographer.take(*menu, "menu-card");
    menu->close();
}

void takeLogs(Photographer& photographer) {
    SimpleGUIMainWindow& window = photographer.window();
    child<QTabWidget>(window, "tabWidget").setCurrentIndex(1);
    // High enough for a line with warnings, if the screen is.
    ui::growOnScreen(window, 200);
    photographer.take(window, "activity-log");
    photographer.expect<EventLogViewer>([&](EventLogViewer& viewer) {
        photographer.take(viewer, "event-log");
        photographer.refuse("event_log");
        photographer.expect("box-event-log");
        click(viewer, "checkActivityID");
        child<QSpinBox>(viewer, "spinActivityID").setValue(1001);
    });
    photographer.run("ShowEventLog");
    ui::selectRow(child<QTableView>(window, "tableActivityLog"), 2);
    photographer.run("ShowEventLog", "event-log-activity");
}

void takeCards(Photographer& photographer) {
    photographer.driver().sets().scrollToBottom();
    photographer.take(photographer.window(), "cards");

    BackupSetViewItem& card = photographer.driver().card(documents);
    photographer.selectSet(documents);
    photographer.driver().sets().scrollToTop();
    const QPoint name = child<QLabel>(card, "labelSetName").geometry().center();
    QMouseEvent twice(QEvent::MouseButtonDblClick, name, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&card, &twice);
    photographer.take(photographer.window(), "card-rename");
    photographer.refuse("setName");
    photographer.expect("box-rename");
    auto* editor = card.findChild<QLineEdit*>();
    if (!editor)
        qFatal("The name of a card can't be edited");
    editor->setText(q("Papers"));
    QTest::keyClick(editor, Qt::Key_Return);
    photographer.end();
}

QString manyLines(const QString& line) {
    QStringList lines;
    for (int i = 0; i < 40; ++i)
        lines << line;
    return lines.join(QLatin1Char('\n'));
}

void takeFailures(Photographer& photographer, const QString& refusal) {
    photographer.driver().sets().clearSelection();
    photographer.run("OnDelete", "box-no-set");
    photographer.refuse("getLastActivityOfType");
    photographer.expect("box-details");
    photographer.selectSet(picturesExpression);
    photographer.end();
    photographer.refuse("start_sync");
    photographer.run("OnSync", "box-error");
    photographer.refuse("start_sync", manyLines(refusal));
    photographer.run("OnSync", "box-long-error");
    photographer.refuse("getConfigurationManager");
    photographer.run("on_actionRegister_triggered", "box-configuration");
    photographer.refuse("addBackupSet");
    photographer.expect<QWizard>(
        [](QWizard& wizard) { support::finishWizard(wizard, support::nameNewSet); });
    photographer.expect("box-new-set");
    photographer.run("OnNewBackupSet");
    photographer.refuse("getDataType");
    photographer.run("on_btnItems_clicked", "box-edit-items");
    photographer.agent().withWorld([](World& world) {
        world.sets()[picturesExpression]->info.data_type = hessiancln::BackupDataType::MSSQLServer;
    });
    photographer.run("on_btnItems_clicked", "box-kind-of-set");
    photographer.selectSet(emptySet);
    photographer.run("OnDelete", "delete-question");
}

/// When the panel over a window that waits appears. Only a picture needs the usual time.
app::CallGate::Times timesFor(const Album& album) {
    app::CallGate::Times times;
    if (!album.keepsPictures())
        times.untilPanel = std::chrono::milliseconds(300);
    return times;
}

/// Doesn't answer until it is released.
struct SilentLogonService : support::ScriptedSecurityOperations {
    platform::SecurityStatus
    initializeContext(platform::SecurityHandle& credentials, platform::SecurityHandle& context,
                      const std::string& targetName, std::span<std::uint8_t> input,
                      std::span<std::uint8_t> output, std::uint32_t& outputSize) override {
        answers.acquire();
        return ScriptedSecurityOperations::initializeContext(credentials, context, targetName,
                                                             input, output, outputSize);
    }
    void release(platform::SecurityHandle&, platform::SecurityHandle&) override {
        released.release();
    }

    QSemaphore answers;
    QSemaphore released;
};

/// A login without a password whose logon service falls silent.
void takeSilentLogonService(Album& album) {
    SilentLogonService service;
    const support::SecurityOperationsOverride system(&service);
    app::CallGate gate(timesFor(album));
    Photographer photographer(album);
    photographer.window().keepAliveBy(gate);
    {
        const support::InTheWait user([&] {
            if (!support::waitingPanel())
                return;
            photographer.take(photographer.window(), "main-window-waiting-logon");
            support::clickDisconnect();
        });
        photographer.window().doLogin(true);
    }
    // The thread that was left behind still uses the service.
    service.answers.release();
    service.released.acquire();
}

/// An agent that falls silent, and the session afterwards.
void takeSilence(Album& album) {
    app::CallGate gate(timesFor(album));
    Photographer photographer(album);
    photographer.window().keepAliveBy(gate);
    photographer.logIn();
    photographer.selectSet(documents);
    photographer.agent().inject("getTarnClientInfo", simulator::Silence{});
    {
        const support::InTheWait user([&] {
            if (!support::waitingPanel())
                return;
            photographer.take(photographer.window(), "main-window-waiting");
            support::clickDisconnect();
        });
        photographer.window().refreshAll();
    }
    photographer.take(photographer.window(), "main-window-lost");
    photographer.logIn();
    photographer.selectSet(documents);
    photographer.expect<QWizard>([&](QWizard& wizard) {
        photographer.refuse("getTarnClientInfo");
        photographer.window().refreshAll();
        photographer.take(wizard, "wizard-session-ended");
    });
    photographer.run("on_btnSchedule_clicked");
}

} // namespace

void takeStart(Album& album) {
    support::ModalDriver modals;
    modals.expect(q("box-translation"), support::isDialog<QMessageBox>, [&](QWidget& box) {
        album.take(box, "box-translation");
        box.close();
    });
    app::installTranslation(*qApp, q("xx"));
    if (!modals.done())
        qFatal("Missing texts aren't reported");
}

void takeMainWindow(Album& album) {
    takeLogin(album);
    {
        Photographer photographer(album, {.scenario = Scenario::Empty});
        photographer.expectLogin();
        photographer.expect<QWizard>([](QWizard&) {});
        photographer.run("OnConnect");
        photographer.take(photographer.window(), "main-window-empty");
    }
    {
        Photographer photographer(album, {.scenario = Scenario::Central});
        photographer.logIn();
        photographer.selectSet(documents);
        photographer.take(photographer.window(), "main-window-central");
    }
    takeSilence(album);
    takeSilentLogonService(album);
    Photographer photographer(album);
    photographer.logIn();
    photographer.take(photographer.window(), "main-window-sets");
    photographer.run("on_action_About_triggered", "about");
    photographer.letPass(std::chrono::minutes(6));
    photographer.selectSet(documents);
    takeMenus(photographer);
    photographer.run("OnBackupNow");
    photographer.letPass(std::chrono::seconds(45));
    photographer.take(photographer.window(), "main-window");
    takeCards(photographer);
    takeLogs(photographer);
    takeFailures(photographer, album.refusal());
}

} // namespace tour
