// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/cached_credentials.h"

#include "tests/support/proxy_test.h"
#include "transport/invoke_exception.h"

namespace {

using namespace hessiancln;

constexpr char typesCall[] = "c 01 00 m 00 05 'types' z";
constexpr char done[] = "r 01 00 z";

constexpr char windowsTypes[] = "r 01 00 V S 00 14 'BackupSetCredentials' "
                                "S 00 24 'Win32FS_Generic_BackupSetCredentials' z z";
constexpr char unixTypes[] = "r 01 00 V S 00 14 'BackupSetCredentials' "
                             "S 00 23 'UnixFS_Generic_BackupSetCredentials' z z";
constexpr char sshTypes[] = "r 01 00 V S 00 14 'BackupSetCredentials' "
                            "S 00 23 'UnixFS_Generic_BackupSetCredentials' "
                            "S 00 1F 'UnixFS_SSH_BackupSetCredentials' z z";
constexpr char otherTypes[] = "r 01 00 V S 00 14 'BackupSetCredentials' z z";

constexpr char password[] = "c 01 00 m 00 0E 'setCredentials' S 00 04 'anna' S 00 06 'sesame' z";
constexpr char keyFile[] = "c 01 00 m 00 18 'setCredentialsViaKeyFile' S 00 04 'root' "
                           "S 00 07 '/etc/id' S 00 04 'satz' z";
constexpr char sudo[] = "c 01 00 m 00 09 'setSudoAs' S 00 06 'backup' S 00 06 'geheim' z";
constexpr char access[] = "c 01 00 m 00 10 'setSSHAccessType' I 00 00 00 01 S 00 07 '/usr/py' z";

class CachedCredentialsTest : public support::ProxyTest {
protected:
    void rememberPassword() {
        agent->expect("windows", password, done);
        cache.setPassword("anna", base::Secret("sesame"),
                          *proxyAt<Win32FS_Generic_BackupSetCredentials>("windows"));
    }
    void rememberKeyFile() {
        agent->expect("ssh", keyFile, done);
        cache.setKeyFile("root", "/etc/id", base::Secret("satz"), *ssh);
    }
    void rememberSudo() {
        agent->expect("ssh", sudo, done);
        cache.setSudo("backup", base::Secret("geheim"), *ssh);
    }
    void rememberAccess() {
        agent->expect("ssh", access, done);
        cache.setSSHAccess(SSHAccessType::Python, "/usr/py", *ssh);
    }

    /// Expects the type queries for an object of these classes; each cast repeats the query.
    void expectTypes(const char* types, int times) {
        for (int i = 0; i < times; ++i)
            expect(typesCall, types);
    }
    void apply() {
        cache.applyTo(proxyAt<BackupSetCredentials>("here"));
        EXPECT_EQ(agent->left(), 0u);
    }

    wizards::CachedCredentials cache;
    const boost::shared_ptr<UnixFS_SSH_BackupSetCredentials> ssh =
        proxyAt<UnixFS_SSH_BackupSetCredentials>("ssh");
};

TEST_F(CachedCredentialsTest, AsLongAsNothingWasTypedNothingIsSent) {
    apply();
}

TEST_F(CachedCredentialsTest, EachSetterSendsAtOnce) {
    rememberPassword();
    agent->expect("unix", password, done);
    cache.setPassword("anna", base::Secret("sesame"),
                      *proxyAt<UnixFS_Generic_BackupSetCredentials>("unix"));
    agent->expect("ssh", password, done);
    cache.setPassword("anna", base::Secret("sesame"), *ssh);
    rememberKeyFile();
    rememberSudo();
    rememberAccess();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(CachedCredentialsTest, WindowsTakesThePasswordOnly) {
    rememberPassword();
    rememberSudo();
    rememberAccess();
    expectTypes(windowsTypes, 2);
    expect(password, done);
    apply();
}

TEST_F(CachedCredentialsTest, UnixTakesThePasswordOnly) {
    rememberPassword();
    rememberSudo();
    rememberAccess();
    expectTypes(unixTypes, 2);
    expect(password, done);
    apply();
}

TEST_F(CachedCredentialsTest, SSHTakesAllInOrder) {
    rememberAccess();
    rememberSudo();
    rememberPassword();
    expectTypes(sshTypes, 2);
    expect(password, done);
    expect(sudo, done);
    expect(access, done);
    apply();
}

TEST_F(CachedCredentialsTest, AKeyFileGoesBeforeAPassword) {
    rememberPassword();
    rememberKeyFile();
    expectTypes(sshTypes, 2);
    expect(keyFile, done);
    apply();
}

TEST_F(CachedCredentialsTest, APasswordTypedLaterTakesThePlaceOfAKeyFile) {
    rememberKeyFile();
    rememberPassword();
    expectTypes(sshTypes, 2);
    expect(password, done);
    apply();
}

TEST_F(CachedCredentialsTest, AKeyFileIsOfNoUseElsewhere) {
    rememberKeyFile();
    expectTypes(windowsTypes, 1);
    apply();
    expectTypes(unixTypes, 1);
    apply();
}

TEST_F(CachedCredentialsTest, NobodyToBecomeIsRememberedToo) {
    agent->expect("ssh", "c 01 00 m 00 09 'setSudoAs' S 00 00 S 00 00 z", done);
    cache.setSudo("", {}, *ssh);
    expectTypes(sshTypes, 2);
    expect("c 01 00 m 00 09 'setSudoAs' S 00 00 S 00 00 z", done);
    apply();
}

TEST_F(CachedCredentialsTest, AnUnknownClassTakesNothing) {
    rememberPassword();
    rememberKeyFile();
    expectTypes(otherTypes, 1);
    apply();
}

TEST_F(CachedCredentialsTest, WhatTheAgentRefusedIsRemembered) {
    agent->expect("windows", password, "r 01 00 f S 00 07 'message' S 00 02 'no' z z");
    EXPECT_THROW(cache.setPassword("anna", base::Secret("sesame"),
                                   *proxyAt<Win32FS_Generic_BackupSetCredentials>("windows")),
                 invoke_exception);
    expectTypes(windowsTypes, 2);
    expect(password, done);
    apply();
}

} // namespace
