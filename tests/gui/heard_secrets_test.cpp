// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <functional>
#include <memory>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDirIterator>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include "app/login_check.h"
#include "config/ad_account_dlg.h"
#include "config/init_clnt_cfg_dlg.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_display.h"
#include "tests/support/gui_modal_driver.h"
#include "ui/secret_field.h"
#include "wizards/enter_simple_user_psw.h"
#include "wizards/ssh_connect_as_dlg.h"
#include "wizards/ssh_sudo_credentials.h"

using support::child;

namespace {

constexpr char listenArgument[] = "--listen";
constexpr int limit = 20'000; ///< milliseconds

// Letters that are in no text of the program, nor in each other.
constexpr char typedLetters[] = "þæðþæð";
constexpr char storedLetters[] = "ßåßå";
constexpr char signLetter[] = "ø";

QString q(const char* text) {
    return QString::fromUtf8(text);
}

/// A client of the accessibility bus: like a screen reader it listens to the events of all objects,
/// and requests the text of an object whose text changes. Writes both to its output, a line each.
class Listener : public QObject {
    Q_OBJECT
public:
    /// Whether it listens now.
    bool begin() {
        const QDBusReply<QString> address =
            QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
                q("org.a11y.Bus"), q("/org/a11y/bus"), q("org.a11y.Bus"), q("GetAddress")));
        bus_ = QDBusConnection::connectToBus(address.value(), q("accessibility"));
        for (const char* events : {"object:", "window:", "focus:"})
            if (!isRegisteredFor(q(events)))
                return false;
        for (const char* events : {"Object", "Window", "Focus"})
            if (!bus_.connect(QString(), QString(), q("org.a11y.atspi.Event.") + q(events),
                              QString(), this, SLOT(hear(QDBusMessage))))
                return false;
        return true;
    }

    static void write(const QString& line) {
        std::puts(QString(line).replace(QLatin1Char('\n'), QLatin1Char(' ')).toUtf8().constData());
        std::fflush(stdout);
    }

public slots:
    void hear(const QDBusMessage& event) {
        QStringList words{event.member()};
        for (const QVariant& argument : event.arguments())
            words << (argument.userType() == qMetaTypeId<QDBusVariant>()
                          ? argument.value<QDBusVariant>().variant().toString()
                          : argument.toString());
        write(words.join(QLatin1Char(' ')));
        if (event.member() == q("TextChanged"))
            requestText(event);
    }

private:
    bool isRegisteredFor(const QString& events) {
        auto call = QDBusMessage::createMethodCall(
            q("org.a11y.atspi.Registry"), q("/org/a11y/atspi/registry"),
            q("org.a11y.atspi.Registry"), q("RegisterEvent"));
        call << events;
        return bus_.call(call).type() == QDBusMessage::ReplyMessage;
    }

    void requestText(const QDBusMessage& event) {
        auto call = QDBusMessage::createMethodCall(event.service(), event.path(),
                                                   q("org.a11y.atspi.Text"), q("GetText"));
        call << 0 << -1;
        auto* reply = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
        connect(reply, &QDBusPendingCallWatcher::finished, this, [reply] {
            reply->deleteLater();
            write(q("GetText ") + QDBusReply<QString>(*reply).value());
        });
    }

    QDBusConnection bus_{QString()};
};

int listen(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    Listener listener;
    if (!listener.begin())
        return 1;
    Listener::write(q("listening"));
    return QCoreApplication::exec();
}

/// The process in which the listener runs.
class ListeningProcess : public support::Helper {
public:
    bool begin() {
        return launch(QCoreApplication::applicationFilePath(), {q(listenArgument)}) &&
               line() == "listening";
    }

    /// All lines up to now.
    const QStringList& heard() {
        while (canReadLine())
            heard_ << QString::fromUtf8(readLine()).trimmed();
        return heard_;
    }
    void forget() { heard_.clear(); }

private:
    QStringList heard_;
};

/// The name of each field of a form that hides what it holds, after that of the form's class.
QSet<QString> hidingFields() {
    QSet<QString> fields;
    QDirIterator forms(QStringLiteral(TARN_SOURCE_DIR "/src"), {q("*.ui")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (forms.hasNext()) {
        QFile file(forms.next());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("Can't read %s", qPrintable(file.fileName()));
        QXmlStreamReader xml(&file);
        QString form;
        QString widget;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            const QString name = xml.attributes().value(q("name")).toString();
            if (xml.name() == q("class") && form.isEmpty())
                form = xml.readElementText();
            else if (xml.name() == q("widget"))
                widget = name;
            else if (name == q("echoMode"))
                fields << form + QLatin1Char('.') + widget;
        }
    }
    return fields;
}

/// A key press for each letter. `QTest` has none for these.
void press(QLineEdit& field, const char* letters) {
    for (const QChar letter : q(letters)) {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QCoreApplication::sendEvent(&field, &key);
    }
}

QString lettersOf(const char* letters) {
    return QLatin1Char('[') + q(letters) + QLatin1Char(']');
}

QStringList linesWith(const QStringList& lines, const QString& pattern) {
    return lines.filter(QRegularExpression(pattern));
}

} // namespace

/// What a user types into a field that hides it isn't sent to the clients of the accessibility bus.
class HeardSecretsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void aPlainFieldIsHeard();
    void aHidingFieldOfQtIsHeard();
    void noSecretIsHeard_data();
    void noSecretIsHeard();
    void everyFieldWasTypedInto();
    void cleanup() { session::disconnectFromAgent(); }

private:
    using Open = std::function<std::unique_ptr<QDialog>()>;

    void type(QLineEdit& field);
    void catchUp();
    void addForm(const char* name, const QStringList& fields, bool isStored, const Open& open);

    ListeningProcess listener_;
    QLineEdit plain_;
    int signs_ = 0;
    QSet<QString> typed_;
};

Q_DECLARE_METATYPE(std::function<std::unique_ptr<QDialog>()>)

/// Returns when the listener has heard everything up to now: it hears a sign after it.
void HeardSecretsTest::catchUp() {
    ++signs_;
    press(plain_, signLetter);
    const QString last = q("GetText ") + q(signLetter).repeated(signs_);
    QTRY_VERIFY_WITH_TIMEOUT(listener_.heard().contains(last), limit);
}

void HeardSecretsTest::initTestCase() {
    resources::initPictures();
    QVERIFY(listener_.begin());
    plain_.show();
    QVERIFY(QTest::qWaitForWindowExposed(&plain_));
    // Qt connects to the bus in the background.
    QTRY_VERIFY_WITH_TIMEOUT((press(plain_, signLetter), ++signs_,
                              !linesWith(listener_.heard(), q(signLetter)).isEmpty()),
                             limit);
    catchUp();
}

/// Replaces the content of the field, and returns when all is heard.
void HeardSecretsTest::type(QLineEdit& field) {
    catchUp();
    listener_.forget();
    field.setFocus();
    field.selectAll();
    press(field, typedLetters);
    QCOMPARE(field.text(), q(typedLetters));
    catchUp();
}

void HeardSecretsTest::aPlainFieldIsHeard() {
    QLineEdit field;
    field.show();
    type(field);
    for (const QChar letter : q(typedLetters))
        QVERIFY(listener_.heard().filter(q("TextChanged insert")).join(QString()).contains(letter));
    QVERIFY(listener_.heard().contains(q("GetText ") + q(typedLetters)));
}

/// Otherwise no field would need more than Qt does.
void HeardSecretsTest::aHidingFieldOfQtIsHeard() {
    QLineEdit field;
    field.setEchoMode(QLineEdit::Password);
    field.show();
    type(field);
    QVERIFY(linesWith(listener_.heard(), lettersOf(typedLetters)).size() >= field.text().size());
}

void HeardSecretsTest::addForm(const char* name, const QStringList& fields, bool isStored,
                               const Open& open) {
    QTest::newRow(name) << fields << isStored << open;
}

void HeardSecretsTest::noSecretIsHeard_data() {
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<bool>("isStored");
    QTest::addColumn<Open>("open");
    const QStringList password{q("editPassword")};
    addForm("login", {q("lineEditPassword")}, false, [] { return std::make_unique<LoginCheck>(); });
    addForm("user and password", password, false,
            [] { return std::make_unique<CEnterSimpleUserPsw>(q("anna")); });
    addForm("SSH password", password, false,
            [] { return std::make_unique<CSSHConnectAsDlg>(q("anna")); });
    addForm("SSH identity", {q("editPassPhrase")}, false, [] {
        auto dialog = std::make_unique<CSSHConnectAsDlg>(q("anna"));
        child<QRadioButton>(*dialog, "radioIdentity").click();
        return dialog;
    });
    addForm("sudo", password, false,
            [] { return std::make_unique<CSSHSudoCredentials>(q("anna")); });
    addForm("LDAP account", {q("editPassword"), q("editConfirm")}, true,
            [] { return std::make_unique<ADAccountDlg>(); });
    addForm("encryption keys",
            {q("txtFieldPrivateKey"), q("txtFieldPrivateKeyConfirm"), q("txtFieldAccountKey"),
             q("txtFieldAccountKeyConfirm")},
            true, [] { return std::make_unique<InitClntCfgDlg>(true); });
}

void HeardSecretsTest::noSecretIsHeard() {
    QFETCH(QStringList, fields);
    QFETCH(bool, isStored);
    QFETCH(Open, open);
    support::GuiAgent agent;
    agent.withWorld([](simulator::World& world) {
        world.configuration.directoryAccount.password = storedLetters;
        world.registration.private_key = storedLetters;
        world.registration.account_key = storedLetters;
    });
    session::connectToAgent("127.0.0.1:" + std::to_string(agent.port()), "demo", "demo", 1);

    listener_.forget();
    const auto dialog = open();
    dialog->show();
    for (const QString& name : fields) {
        auto& field = child<QLineEdit>(*dialog, name.toLatin1());
        if (isStored)
            QTRY_COMPARE(field.text(), q(storedLetters));
        catchUp();
        QCOMPARE(linesWith(listener_.heard(), lettersOf(storedLetters)), QStringList());
        QVERIFY(field.isVisible());
        type(field);
        const QString all = lettersOf(storedLetters) + QLatin1Char('|') + lettersOf(typedLetters);
        QCOMPARE(linesWith(listener_.heard(), all), QStringList());
        // Each key press is announced nevertheless.
        const QChar mask = field.displayText().at(0);
        QVERIFY(linesWith(listener_.heard(), q("TextChanged insert .*") + mask).size() >=
                field.text().size());
        typed_ << q(dialog->metaObject()->className()) + QLatin1Char('.') + name;
    }
}

void HeardSecretsTest::everyFieldWasTypedInto() {
    const QSet<QString> fields = hidingFields();
    QVERIFY(fields.contains(q("LoginCheck.lineEditPassword")));
    QCOMPARE(typed_, fields);
}

int main(int argc, char** argv) {
    if (argc > 1 && qstrcmp(argv[1], listenArgument) == 0)
        return listen(argc, argv);
    // The accessibility bus has its socket there.
    const QTemporaryDir runtimeFolder;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder.path()));
    support::Display display;
    support::Bus bus;
    if (!display.begin() || !bus.begin())
        qFatal("The display or the bus doesn't start");
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    QApplication application(argc, argv);
    HeardSecretsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "heard_secrets_test.moc"
