// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/sources.h"

#include <string>
#include <utility>

#include "simulator/world/world.h"

namespace simulator {
namespace {

using Type = FolderTree::Type;

constexpr std::int64_t kibibyte = 1'024;
constexpr std::int64_t mebibyte = 1'024 * kibibyte;

SourceComputer withUsers(std::string_view name, LoginKind kind) {
    SourceComputer computer;
    computer.name = name;
    computer.kind = kind;
    computer.folders = FolderTree(kind != LoginKind::Windows);
    for (const char* const user : {"anna", "backup"})
        computer.users.emplace(user, sources::password);
    if (kind != LoginKind::Windows)
        computer.users.emplace("root", sources::password);
    return computer;
}

void addHome(FolderTree& folders, const std::string& home) {
    folders.addFile(home + R"(Documents\Letters\Grandmother.docx)", 48 * kibibyte);
    folders.addFile(home + R"(Documents\Letters\bank.docx)", 31 * kibibyte);
    folders.addFile(home + R"(Documents\Reports\2023\Annual report.pdf)", 2 * mebibyte);
    folders.addFile(home + R"(Documents\Reports\Template.dotx)", 90 * kibibyte);
    folders.addFile(home + R"(Documents\notes.txt)", 3 * kibibyte);
    folders.addFile(home + R"(Desktop\To do.txt)", 1 * kibibyte);
    folders.addFile(home + R"(Pictures\Urlaub Müller 2022\IMG_0001.jpg)", 4 * mebibyte);
    folders.addFile(home + R"(Pictures\wedding\IMG_0002.jpg)", 5 * mebibyte);
    folders.addFile(home + R"(Videos\Birthday.mp4)", 812 * mebibyte);
    folders.addFolder(home + "Music");
    folders.addFolder(home + "OneDrive", Type::OtherFolder);
}

SourceComputer windowsAgent() {
    SourceComputer computer = withUsers("My Computer", LoginKind::Windows);
    const std::string home = R"(C:\Users\anna\)";
    computer.presets = {{home + "Documents", "Documents of anna"},
                        {home + "Pictures", "Pictures of anna"},
                        {home + "Desktop", "Desktop of anna"},
                        {R"(D:\Mail)", "Mail"}};
    FolderTree& folders = computer.folders;
    addHome(folders, home);
    folders.addFolder(R"(C:\Users\Public\Documents)");
    folders.addFolder(R"(C:\Program Files\Common Files)");
    folders.addFile(R"(C:\pagefile.sys)", 4'096 * mebibyte, static_cast<Type>(9));
    folders.deny(sources::closedFolder, "Access is denied.");
    folders.addFile(R"(D:\Projects\Archive\2019.zip)", 700 * mebibyte);
    folders.addFile(R"(D:\Projects\Tower\plan.dwg)", 12 * mebibyte);
    folders.addFile(R"(D:\Mail\archive.pst)", 900 * mebibyte);
    folders.addFile(R"(D:\Tax\2022.pdf)", 3 * mebibyte);
    folders.addFolder(R"(D:\Music)");
    folders.addFile(R"(D:\Databases\Inventory)", 60 * mebibyte, Type::Database);
    folders.fill(sources::largeFolder, sources::largeCount);
    folders.addFolder(R"(E:\LocalStorage)");
    return computer;
}

SourceComputer unixAgent() {
    SourceComputer computer = withUsers("Tarn-Client Computer", LoginKind::Unix);
    computer.presets = {{R"(/\home)", "Home directories"}, {R"(/\etc)", "System settings"}};
    FolderTree& folders = computer.folders;
    addHome(folders, R"(/\home\anna\)");
    // On such a system these are different names.
    folders.addFolder(R"(/\home\anna\music)");
    folders.addFile(R"(/\etc\hosts)", 1 * kibibyte);
    folders.addFolder(R"(/\etc\ssh)");
    folders.addFolder(R"(/\usr\local\bin)");
    folders.addFolder(R"(/\srv\storage)");
    folders.deny(sources::closedUnixFolder, "Permission denied");
    folders.fill(sources::largeUnixFolder, sources::largeCount);
    return computer;
}

SourceComputer windowsServer(std::string_view name) {
    SourceComputer computer = withUsers(name, LoginKind::Windows);
    computer.folders.addFile(R"(C$\inetpub\logs\u_ex2311.log)", 17 * mebibyte);
    computer.folders.addFile(R"(Shares\Sales\Offers.xlsx)", 2 * mebibyte);
    computer.folders.deny(R"(Shares\Payroll)", "Access is denied.");
    return computer;
}

SourceComputer unixServer() {
    SourceComputer computer = withUsers(sources::storage, LoginKind::Unix);
    computer.presets = {{R"(/\volume1)", "First volume"}};
    computer.folders.addFolder(R"(/\volume1\photos)");
    computer.folders.addFolder(R"(/\volume1\Photos)");
    return computer;
}

SourceComputer sshServer() {
    SourceComputer computer = withUsers(sources::webServer, LoginKind::Ssh);
    computer.keyFile = sources::keyFile;
    computer.passphrase = sources::passphrase;
    computer.folders.addFile(R"(/\var\www\index.html)", 2 * kibibyte);
    computer.folders.addFolder(R"(/\etc\nginx)");
    computer.folders.deny(sources::closedUnixFolder, "Permission denied");
    return computer;
}

} // namespace

void addSources(World& world) {
    const bool ofWindows = world.system == hessiancln::ClientOSType::Windows;
    Network& network = world.network;
    network.addContainer("UNIX-SSH");
    network.addContainer("Unix Hosts", static_cast<Network::Type>(2));
    network.addContainer("Microsoft Windows Network");
    network.addContainer("NFS");
    network.setLocal(ofWindows ? windowsAgent() : unixAgent(), world.computer);
    network.addContainer(std::string(sources::brokenNetwork));
    network.deny(std::string(sources::brokenNetwork), "The network path was not found.");
    network.addContainer(R"(Microsoft Windows Network\OFFICE)");
    network.addContainer(R"(Microsoft Windows Network\Büro)");
    network.addComputer(windowsServer(sources::oldWorkstation));
    network.addComputer(windowsServer(sources::fileServer));
    network.addComputer(sshServer());
    network.addComputer(unixServer());
}

} // namespace simulator
