// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set_credentials.h"

#include "tests/api/received.h"

namespace {

using namespace hessiancln;

class BackupSetCredentialsTest : public ReceivingTest {
protected:
    const boost::shared_ptr<BackupSetCredentials> credentials =
        proxyAt<BackupSetCredentials>("here");
    const boost::shared_ptr<Win32FS_Generic_BackupSetCredentials> windows =
        proxyAt<Win32FS_Generic_BackupSetCredentials>("here");
    const boost::shared_ptr<UnixFS_Generic_BackupSetCredentials> unixLike =
        proxyAt<UnixFS_Generic_BackupSetCredentials>("here");
    const boost::shared_ptr<UnixFS_SSH_BackupSetCredentials> ssh =
        proxyAt<UnixFS_SSH_BackupSetCredentials>("here");
};

TEST_F(BackupSetCredentialsTest, check) {
    expect("c 01 00 m 00 05 'check' S 00 09 'RECHNER-Ö' z", "r 01 00 z");
    credentials->check("RECHNER-Ö");
}

TEST_F(BackupSetCredentialsTest, checkThatIsRefused) {
    expect("c 01 00 m 00 05 'check' S 00 02 'pc' z",
           "r 01 00 f S 00 04 'code' S 00 01 '5' S 00 07 'message' S 00 1A 'Zugriff verweigert für "
           "zoë' z z");
    expectFault([this] { credentials->check("pc"); }, "Zugriff verweigert für zoë");
}

TEST_F(BackupSetCredentialsTest, UsingClientCredentials) {
    expect("c 01 00 m 00 18 'isUsingClientCredentials' z", "r 01 00 T z");
    EXPECT_TRUE(credentials->isUsingClientCredentials());
    expect("c 01 00 m 00 19 'setUsingClientCredentials' F z", "r 01 00 z");
    credentials->setUsingClientCredentials(false);
}

TEST_F(BackupSetCredentialsTest, getUserName) {
    expect("c 01 00 m 00 0B 'getUserName' z", "r 01 00 S 00 08 'BÜRO\\zoë' z");
    EXPECT_EQ(windows->getUserName(), "BÜRO\\zoë");
    expect("c 01 00 m 00 0B 'getUserName' z", "r 01 00 S 00 04 'root' z");
    EXPECT_EQ(unixLike->getUserName(), "root");
    expect("c 01 00 m 00 0B 'getUserName' z", "r 01 00 S 00 00 z");
    EXPECT_EQ(ssh->getUserName(), "");
}

TEST_F(BackupSetCredentialsTest, setCredentials) {
    expect("c 01 00 m 00 0E 'setCredentials' S 00 08 'BÜRO\\zoë' S 00 0A 'pässwört €' z",
           "r 01 00 z");
    windows->setCredentials("BÜRO\\zoë", "pässwört €");
    expect("c 01 00 m 00 0E 'setCredentials' S 00 04 'root' S 00 00 z", "r 01 00 z");
    unixLike->setCredentials("root", "");
    expect("c 01 00 m 00 0E 'setCredentials' S 00 06 'backup' S 00 06 'geheim' z", "r 01 00 z");
    ssh->setCredentials("backup", "geheim");
}

TEST_F(BackupSetCredentialsTest, setCredentialsViaKeyFile) {
    expect("c 01 00 m 00 18 'setCredentialsViaKeyFile' S 00 04 'root' S 00 11 '/home/zoë/.ssh/id' "
           "S 00 04 'satz' z",
           "r 01 00 z");
    ssh->setCredentialsViaKeyFile("root", "/home/zoë/.ssh/id", "satz");
}

TEST_F(BackupSetCredentialsTest, getSudoUser) {
    expect("c 01 00 m 00 0B 'getSudoUser' z", "r 01 00 S 00 04 'root' z");
    EXPECT_EQ(ssh->getSudoUser(), "root");
}

TEST_F(BackupSetCredentialsTest, setSudoAs) {
    expect("c 01 00 m 00 09 'setSudoAs' S 00 04 'root' S 00 06 'geheim' z", "r 01 00 z");
    ssh->setSudoAs("root", "geheim");
    expect("c 01 00 m 00 09 'setSudoAs' S 00 00 S 00 00 z", "r 01 00 z");
    ssh->setSudoAs("", "");
}

TEST_F(BackupSetCredentialsTest, getSSHAccessType) {
    expect("c 01 00 m 00 10 'getSSHAccessType' z", "r 01 00 I 00 00 00 01 z");
    EXPECT_EQ(ssh->getSSHAccessType(), SSHAccessType::Python);
    expect("c 01 00 m 00 10 'getSSHAccessType' z", "r 01 00 I 00 00 00 09 z");
    EXPECT_EQ(ssh->getSSHAccessType(), SSHAccessType{3});
}

TEST_F(BackupSetCredentialsTest, getSSHInterpreterPath) {
    expect("c 01 00 m 00 15 'getSSHInterpreterPath' z", "r 01 00 S 00 0D '/usr/bin/perl' z");
    EXPECT_EQ(ssh->getSSHInterpreterPath(), "/usr/bin/perl");
}

TEST_F(BackupSetCredentialsTest, setSSHAccessType) {
    expect("c 01 00 m 00 10 'setSSHAccessType' I 00 00 00 02 S 00 0D '/opt/skript-ü' z",
           "r 01 00 z");
    ssh->setSSHAccessType(SSHAccessType::DirectScriptExecution, "/opt/skript-ü");
}

} // namespace
