// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <memory>
#include <random>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "simulator/simulator.h"
#include "simulator/world/world.h"
#include "tests/support/derived_secret.h"
#include "tests/support/memory_scan.h"

using simulator::LoginKind;
using simulator::Simulator;
using simulator::World;

namespace {

/// The process that opens the dialog. It ends with this object.
class Client : public QProcess {
public:
    explicit Client(const QStringList& arguments) {
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        start(QStringLiteral(TARN_SECRET_DIALOGS),
              arguments + QStringList{QStringLiteral("-platform"), QStringLiteral("offscreen")});
    }
    ~Client() override {
        kill();
        waitForFinished();
    }

    /// The next word that it prints, or the error if it prints nothing within 20 seconds.
    QString next() {
        while (!canReadLine() && waitForReadyRead(20'000)) {
        }
        return canReadLine() ? QString::fromUtf8(readLine()).trimmed() : errorString();
    }

    void goOn() {
        write("\n");
        waitForBytesWritten();
    }

    std::vector<std::string> findings(const std::string& secret) const {
        return memory_scan::findings(static_cast<long>(processId()), secret);
    }
};

QByteArray listed(const std::vector<std::string>& findings) {
    QByteArray text = QByteArray::number(static_cast<int>(findings.size())) + " found:";
    for (const std::string& finding : findings)
        text += "\n  " + QByteArray::fromStdString(finding);
    return text;
}

/// A key of 4,000 characters with the secret in its middle.
std::string longKey(const std::string& secret) {
    const std::string half(2000 - support::derivedSecretLength / 2, '.');
    return half + secret + half;
}

bool wasCalled(const Simulator& agent, const char* method) {
    return std::ranges::any_of(agent.callLog(),
                               [method](const auto& call) { return call.method == method; });
}

} // namespace

/// A secret that the user types into a dialog, or that the dialog reads from the agent or a file,
/// is nowhere in the memory of the process once the dialog has closed.
class SecretsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void leaveTheMemoryWithTheirDialog_data();
    void leaveTheMemoryWithTheirDialog();
    void ofAnOverlongLineNeverStayInMemory();

private:
    static void prepare(const QString& dialog, const std::string& secret, World& world);
    static void verifyArrived(const QString& dialog, const std::string& secret, Simulator& agent);
    QString criFor(const QString& dialog, const std::string& secret);
    QString cri(const std::string& key);

    std::random_device random_;
    QTemporaryDir folder_;
};

void SecretsTest::initTestCase() {
    if (!memory_scan::isPossible())
        QSKIP("the memory of a process can't be read");
}

/// A file with that key and, after it, a name by which the dialog shows that it has read
/// everything.
QString SecretsTest::cri(const std::string& key) {
    const QString path = folder_.filePath(QStringLiteral("a.cri"));
    const auto lines =
        QByteArray::fromStdString("PrivateEncKey=" + key + "\nUserName=Read to the end\n");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size())
        qFatal("Can't write a file");
    return path;
}

void SecretsTest::leaveTheMemoryWithTheirDialog_data() {
    QTest::addColumn<QString>("dialog");
    for (const char* dialog :
         {"login", "simple", "sshPassword", "sshIdentity", "sudo", "noSudo", "accountTyped",
          "accountValidated", "accountShown", "privateKeyTyped", "accountKeyTyped", "keysShown",
          "longKeysKept", "keysUnread", "keyFromFile", "longKeyFromFile", "keyFromFileCancelled",
          "keyReplacedFromFile", "code"})
        QTest::newRow(dialog) << QString::fromLatin1(dialog);
}

/// Makes the agent accept that secret, or return it.
void SecretsTest::prepare(const QString& dialog, const std::string& secret, World& world) {
    auto& computer = *world.network.local();
    if (dialog == QStringLiteral("simple")) {
        computer.kind = LoginKind::Windows;
        computer.users = {{"demo", secret}, {"", secret}};
    } else if (dialog == QStringLiteral("sudo") || dialog == QStringLiteral("noSudo")) {
        computer.kind = LoginKind::Ssh;
        computer.users = {{"demo", "demo"}, {"backup", secret}};
    } else if (dialog.startsWith(QStringLiteral("ssh"))) {
        computer.kind = LoginKind::Ssh;
        computer.users = {{"demo", secret}, {"", secret}};
        computer.keyFile = "/home/anna/.ssh/id";
        computer.passphrase = secret;
    } else if (dialog == QStringLiteral("accountShown")) {
        world.configuration.directoryAccount.password = secret;
    } else if (dialog == QStringLiteral("keysShown") || dialog == QStringLiteral("keysUnread") ||
               dialog == QStringLiteral("keyReplacedFromFile")) {
        world.registration.private_key = secret;
        world.registration.account_key = secret;
    } else if (dialog == QStringLiteral("longKeysKept")) {
        world.registration.private_key = longKey(secret);
        world.registration.account_key = longKey(secret);
    }
}

/// Creates the file that the dialog reads, and returns its path; empty if it reads no file.
QString SecretsTest::criFor(const QString& dialog, const std::string& secret) {
    if (dialog == QStringLiteral("keyReplacedFromFile"))
        return cri("another key");
    if (dialog == QStringLiteral("longKeyFromFile"))
        return cri(longKey(secret));
    return dialog.startsWith(QStringLiteral("keyFromFile")) ? cri(secret) : QString();
}

/// Checks that the secret arrived, for dialogs that also continue without the agent's approval.
void SecretsTest::verifyArrived(const QString& dialog, const std::string& secret,
                                Simulator& agent) {
    if (dialog == QStringLiteral("accountValidated"))
        QVERIFY(wasCalled(agent, "setADUserInfo"));
    if (dialog == QStringLiteral("keysUnread"))
        QVERIFY(wasCalled(agent, "getUserInfo"));
    if (dialog.startsWith(QStringLiteral("longKey")))
        QVERIFY(wasCalled(agent, "setTarnCRegistrationInfo"));
    agent.withWorld([&](World& world) {
        if (dialog == QStringLiteral("accountTyped"))
            QCOMPARE(world.configuration.directoryAccount.password, secret);
        if (dialog == QStringLiteral("privateKeyTyped") || dialog == QStringLiteral("keyFromFile"))
            QCOMPARE(world.registration.private_key, secret);
        if (dialog == QStringLiteral("accountKeyTyped"))
            QCOMPARE(world.registration.account_key, secret);
    });
}

void SecretsTest::leaveTheMemoryWithTheirDialog() {
    QFETCH(QString, dialog);
    const std::uint32_t seed = random_();
    const std::string secret = support::derivedSecret(seed);
    simulator::Options options;
    if (dialog == QStringLiteral("login"))
        options.password = secret;
    if (dialog == QStringLiteral("code"))
        options.twoFactorCode = secret;
    Simulator agent(options);
    agent.withWorld([&](World& world) { prepare(dialog, secret, world); });
    const bool fails = dialog == QStringLiteral("keysUnread");
    if (fails)
        agent.inject("getUserInfo", simulator::Fault{"Out of order."});

    Client client(
        {dialog, QString::number(agent.port()), QString::number(seed), criFor(dialog, secret)});
    QCOMPARE(client.next(), QStringLiteral("typed"));
    // The search below proves nothing unless this one finds the secret. After a failed call, the
    // secret is already gone.
    QVERIFY(client.findings(secret).empty() == fails);
    client.goOn();
    QCOMPARE(client.next(), QStringLiteral("closed"));
    verifyArrived(dialog, secret, agent);
    const auto left = client.findings(secret);
    QVERIFY2(left.empty(), listed(left).constData());
}

void SecretsTest::ofAnOverlongLineNeverStayInMemory() {
    const std::uint32_t seed = random_();
    const std::string secret = support::derivedSecret(seed);
    Simulator agent;
    Client client({QStringLiteral("keyFromFile"), QString::number(agent.port()),
                   QString::number(seed), cri(std::string(70'000, '.') + secret + secret)});
    QVERIFY(client.next().endsWith(QStringLiteral(" has a line of more than 64 KiB.")));
    client.goOn();
    // The dialog takes no value from the file.
    QCOMPARE(client.next(), QStringLiteral("the file isn't read to its end"));
    const auto left = client.findings(secret);
    QVERIFY2(left.empty(), listed(left).constData());
}

QTEST_GUILESS_MAIN(SecretsTest)
#include "secrets_test.moc"
