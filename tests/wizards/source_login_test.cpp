// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "api/backup_set_records.h"
#include "session/text.h"
#include "wizards/credentials_kind.h"
#include "wizards/select_data_source_page.h"
#include "wizards/set_name_page.h"
#include "wizards/ssh_access_text.h"

namespace {

using hessiancln::SSHAccessType;
using session::fromWire;
using session::toWire;
using wizards::CredentialsKind;

bool local(const char* source) {
    return wizards::isLocalComputer(fromWire(source));
}

TEST(ComputerName, TheAgentsOwnComputerHasTwoNames) {
    EXPECT_TRUE(local("My Computer"));
    EXPECT_TRUE(local("Tarn-Client Computer"));
    EXPECT_TRUE(local("  My Computer\t"));
    EXPECT_FALSE(local(""));
    EXPECT_FALSE(local("FILESRV"));
}

TEST(ComputerName, OnlyTheTextBeforeTheFirstBackslashCounts) {
    EXPECT_TRUE(local(R"(My Computer\C:\Users)"));
    EXPECT_TRUE(local("My Computer\\"));
    EXPECT_FALSE(local(R"(\My Computer)"));
    EXPECT_FALSE(local(R"(OFFICE\My Computer)"));
    EXPECT_FALSE(local(R"(My Computer \C:)"));
    EXPECT_FALSE(local("My Computer/C:"));
}

TEST(ComputerName, InOtherCaseItIsAnotherComputer) {
    EXPECT_FALSE(local("my computer"));
    EXPECT_FALSE(local("MY COMPUTER"));
    EXPECT_FALSE(local("Tarn-client Computer"));
}

TEST(CredentialsKind, IsKnownByTheClasses) {
    const char* windows = "Win32FS_Generic_BackupSetCredentials";
    const char* unixLike = "UnixFS_Generic_BackupSetCredentials";
    const char* ssh = "UnixFS_SSH_BackupSetCredentials";
    const char* root = "BackupSetCredentials";
    EXPECT_EQ(wizards::credentialsKind({root, windows}), CredentialsKind::Windows);
    EXPECT_EQ(wizards::credentialsKind({root, unixLike}), CredentialsKind::Unix);
    EXPECT_EQ(wizards::credentialsKind({root, unixLike, ssh}), CredentialsKind::SSH);
    EXPECT_EQ(wizards::credentialsKind({ssh, root}), CredentialsKind::SSH);
    EXPECT_EQ(wizards::credentialsKind({ssh, windows}), CredentialsKind::Windows);
    EXPECT_EQ(wizards::credentialsKind({root}), CredentialsKind::Other);
    EXPECT_EQ(wizards::credentialsKind({}), CredentialsKind::Other);
    EXPECT_EQ(wizards::credentialsKind({"win32fs_generic_backupsetcredentials"}),
              CredentialsKind::Other);
}

TEST(SSHAccess, HasANameAndPerhapsAPath) {
    const auto text = [](int type, const char* path) {
        return toWire(wizards::sshAccessText(static_cast<SSHAccessType>(type), fromWire(path)));
    };
    EXPECT_EQ(text(0, ""), "Perl");
    EXPECT_EQ(text(1, ""), "Python");
    EXPECT_EQ(text(2, ""), "Direct Script Execution");
    EXPECT_EQ(text(0, "/usr/bin/perl"), "Perl: /usr/bin/perl");
    EXPECT_EQ(text(2, "/opt/skript-ü"), "Direct Script Execution: /opt/skript-ü");
    EXPECT_EQ(text(3, ""), "");
    EXPECT_EQ(text(3, "/usr/bin/perl"), ": /usr/bin/perl");
}

TEST(SSHAccess, StandsInAList) {
    EXPECT_EQ(wizards::indexOfSSHAccess(SSHAccessType::Perl), 0);
    EXPECT_EQ(wizards::indexOfSSHAccess(SSHAccessType::Python), 1);
    EXPECT_EQ(wizards::indexOfSSHAccess(SSHAccessType::DirectScriptExecution), 2);
    for (const int code : {-1, 3, 2147483647})
        EXPECT_EQ(wizards::indexOfSSHAccess(static_cast<SSHAccessType>(code)), 0);
    EXPECT_EQ(wizards::sshAccessOfIndex(0), SSHAccessType::Perl);
    EXPECT_EQ(wizards::sshAccessOfIndex(1), SSHAccessType::Python);
    EXPECT_EQ(wizards::sshAccessOfIndex(2), SSHAccessType::DirectScriptExecution);
    for (const int index : {-1, 3})
        EXPECT_EQ(wizards::sshAccessOfIndex(index), SSHAccessType::Perl);
}

TEST(SetNames, ANameIsTakenInWhateverCase) {
    std::vector<hessiancln::backup_set_info> sets(2);
    sets[0].name = "Documents";
    sets[1].name = "Bücher";
    const auto taken = [&sets](const char* name) {
        return wizards::isNameTaken(fromWire(name), sets);
    };
    EXPECT_TRUE(taken("Documents"));
    EXPECT_TRUE(taken("dOCUMENTS"));
    EXPECT_TRUE(taken("BÜCHER"));
    EXPECT_FALSE(taken("Document"));
    EXPECT_FALSE(taken("Documents 2"));
    EXPECT_FALSE(taken(" Documents"));
    EXPECT_FALSE(taken(""));
}

TEST(SetNames, NoNameIsTakenWhereThereAreNoSets) {
    EXPECT_FALSE(wizards::isNameTaken(fromWire("Documents"), {}));
    EXPECT_FALSE(wizards::isNameTaken({}, {}));
}

} // namespace
