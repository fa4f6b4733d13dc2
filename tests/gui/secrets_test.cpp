// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
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
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        setProcessEnvironment(environment);
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        start(QStringLiteral(TARN_SECRET_DIALOGS), arguments);
    }
    ~Client() override {
        kill();
        waitForFinished();
    }

    /// The next word that it says, or why it doesn't.
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
        return memory_scan::findings(static_cast<pid_t>(processId()), secret);
    }
};

QByteArray listed(const std::vector<std::string>& findings) {
    QByteArray text = QByteArray::number(static_cast<int>(findings.size())) + " found:";
    for (const std::string& finding : findings)
        text += "\n  " + QByteArray::fromStdString(finding);
    return text;
}

} // namespace

/// What is typed into a dialog as a secret, or comes into it from the agent or from a file, is
/// nowhere in the memory of the process any more when the dialog has closed.
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
    QString cri(const QByteArray& lines);

    std::random_device random_;
    QTemporaryDir folder_;
};

void SecretsTest::initTestCase() {
    if (!memory_scan::isPossible())
        QSKIP("the memory of a process can't be read");
}

QString SecretsTest::cri(const QByteArray& lines) {
    const QString path = folder_.filePath(QStringLiteral("a.cri"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size())
        qFatal("No file can be written");
    return path;
}

void SecretsTest::leaveTheMemoryWithTheirDialog_data() {
    QTest::addColumn<QString>("dialog");
    for (const char* dialog :
         {"login", "simple", "sshPassword", "sshIdentity", "sudo", "accountTyped", "accountShown",
          "registrationTyped", "registrationShown", "registrationFile", "code"})
        QTest::newRow(dialog) << QString::fromLatin1(dialog);
}

/// Lets the agent take that secret, or show it.
void SecretsTest::prepare(const QString& dialog, const std::string& secret, World& world) {
    auto& computer = *world.network.local();
    if (dialog == QStringLiteral("simple")) {
        computer.kind = LoginKind::Windows;
        computer.users = {{"demo", secret}, {"", secret}};
    } else if (dialog == QStringLiteral("sudo")) {
        computer.kind = LoginKind::Ssh;
        computer.users = {{"demo", "demo"}, {"backup", secret}};
    } else if (dialog.startsWith(QStringLiteral("ssh"))) {
        computer.kind = LoginKind::Ssh;
        computer.users = {{"demo", secret}, {"", secret}};
        computer.keyFile = "/home/anna/.ssh/id";
        computer.passphrase = secret;
    } else if (dialog == QStringLiteral("accountShown")) {
        world.configuration.directoryAccount.password = secret;
    } else if (dialog == QStringLiteral("registrationShown")) {
        world.registration.private_key = secret;
        world.registration.account_key = secret;
    }
}

/// Where the dialog doesn't only go on when the agent has found it right.
void SecretsTest::verifyArrived(const QString& dialog, const std::string& secret,
                                Simulator& agent) {
    agent.withWorld([&](World& world) {
        if (dialog == QStringLiteral("accountTyped"))
            QCOMPARE(world.configuration.directoryAccount.password, secret);
        if (dialog == QStringLiteral("registrationTyped") ||
            dialog == QStringLiteral("registrationFile"))
            QCOMPARE(world.registration.private_key, secret);
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

    QStringList arguments{dialog, QString::number(agent.port()), QString::number(seed)};
    if (dialog == QStringLiteral("registrationFile"))
        arguments << cri(QByteArray::fromStdString("PrivateEncKey=" + secret + "\n"));
    Client client(arguments);
    QCOMPARE(client.next(), QStringLiteral("typed"));
    QVERIFY(!client.findings(secret).empty()); // or the search finds nothing anyway
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
    const std::string longLine = std::string(70'000, '.') + secret;
    Client client({QStringLiteral("registrationFile"), QString::number(agent.port()),
                   QString::number(seed),
                   cri(QByteArray::fromStdString("PrivateEncKey=" + longLine + secret + "\n"))});
    QVERIFY(client.next().endsWith(QStringLiteral(" has a line of more than 64 KiB.")));
    const auto left = client.findings(secret);
    QVERIFY2(left.empty(), listed(left).constData());
}

QTEST_GUILESS_MAIN(SecretsTest)
#include "secrets_test.moc"
