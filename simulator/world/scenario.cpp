// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/scenario.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "simulator/world/described_set.h"
#include "simulator/world/health_scenarios.h"
#include "simulator/world/history.h"
#include "simulator/world/names.h"
#include "simulator/world/plans.h"
#include "simulator/world/set_storage.h"
#include "simulator/world/sources.h"
#include "simulator/world/storages.h"
#include "simulator/world/world.h"

namespace simulator {
namespace {

using hessiancln::ActivityType;
using hessiancln::BackupDataType;
using hessiancln::ClientOSType;
using hessiancln::KeyEncryptionType;

constexpr Milliseconds quarterOfAnHour = Milliseconds{15} * 60 * 1000;
constexpr std::int64_t mebibyte = 1 << 20;
constexpr std::int64_t gibibyte = 1 << 30;

constexpr std::array<std::pair<std::string_view, Scenario>, 19> names{{
    {"default", Scenario::Default},
    {"empty", Scenario::Empty},
    {"central", Scenario::Central},
    {"notebook", Scenario::Notebook},
    {"first-run", Scenario::FirstRun},
    {"unix", Scenario::Unix},
    {"large", Scenario::Large},
    {"generations", Scenario::Generations},
    {"groups", Scenario::Groups},
    {"shares", Scenario::Shares},
    {"failing", Scenario::Failing},
    {"many-files", Scenario::ManyFiles},
    {"deep", Scenario::Deep},
    {"storages", Scenario::Storages},
    {"overdue", Scenario::Overdue},
    {"failed", Scenario::Failed},
    {"stalled", Scenario::Stalled},
    {"overlapping", Scenario::Overlapping},
    {"many-folders", Scenario::ManyFolders},
}};

ItemState excluded(const BackupSetState& set, const std::string& folder) {
    return {ItemState::Kind::Exclusion, set.source, folder};
}

ItemState filtered(const BackupSetState& set, const std::string& root,
                   const std::string& expression, bool inclusion) {
    ItemState item{ItemState::Kind::Regex, set.source, root};
    item.expression = expression;
    item.inclusion = inclusion;
    item.caseSensitive = item.matchDirectories = false;
    return item;
}

void setInfo(World& world, const std::string& name, const std::string& value) {
    world.about.push_back({name, value});
}

void describeAgent(World& world, bool central, bool firstRun) {
    const bool ofWindows = world.system == ClientOSType::Windows;
    setInfo(world, "Computer", world.computer);
    setInfo(world, "Operating System",
            ofWindows ? "Windows 11 Pro 23H2 (build 22631)" : "Debian GNU/Linux 12, kernel 6.1.0");
    setInfo(world, "Tarn-Client Version", "14.2.0.1180");
    setInfo(world, "Database", "Embedded, 214 MB");
    auto& enrolled = world.registration;
    if (!firstRun) {
        enrolled.customer_name = "Müller & Söhne GmbH";
        enrolled.account_num = "OFFICE-401";
        enrolled.client_num = "A4C100931700";
        enrolled.private_key_enc = enrolled.account_key_enc = KeyEncryptionType::AES256;
        enrolled.private_key = "the quick brown fox";
        enrolled.account_key = "jumps over the lazy dog";
        enrolled.tarnsys_ip_addr = "vault1.example.net\\;vault2.example.net";
        enrolled.escrow_enc_key = true;
    } else {
        enrolled.private_key_enc = enrolled.account_key_enc = KeyEncryptionType::AES128;
    }
    setInfo(world, "Account", enrolled.account_num);
    setInfo(world, "Client Number", enrolled.client_num);
    setInfo(world, "Tarn-System", firstRun ? "" : "vault1.example.net");
    setInfo(world, "Centrally Managed Backup Policy", central ? "Yes" : "No");
    setInfo(world, "InitialClient", firstRun ? "Yes" : "No");
}

void addDiligentSets(World& world, History& history) {
    const std::string home = "C:\\Users\\anna\\";
    const auto documents = world.addSet(describedSet(
        world, {"Documents", {home + "Documents", home + "Desktop"}, 38 * gibibyte, 84'211}));
    const auto pictures = world.addSet(describedSet(
        world,
        {"Pictures and Videos", {home + "Pictures", home + "Videos"}, 412 * gibibyte, 61'730}));
    const auto mail =
        world.addSet(describedSet(world, {"Mail archive", {"D:\\Mail\\"}, 17 * gibibyte, 318}));
    const auto projects = world.addSet(describedSet(
        world, {"Kundenprojekte Müller & Söhne", {"D:\\Projects"}, 96 * gibibyte, 203'448}));
    history.dailyBackups(documents, 45, 20);
    history.dailyBackups(pictures, 45, 21);
    history.dailyBackups(mail, 30, 12);
    history.dailyBackups(projects, 30, 19);
    history.run(documents, ActivityType::Restore, 9'400, 75, 3, 12 * mebibyte);
    history.run(projects, ActivityType::Synchronization, 15'000, 48, 203'448, 0);
    history.run(pictures, ActivityType::Delete, 52'000, 31, 1'204, 3 * gibibyte);

    projects->info.schedule_id = plans::firstOfTheMonth;
    projects->items.push_back(excluded(*projects, "D:\\Projects\\Archive"));
    projects->items.push_back(filtered(*projects, "D:", R"(.*\.(|tmp|swp|bak))", false));
    for (const char* const types : {"jpg|jpeg|png|tif", "avi|mov|mpeg|mpg"})
        pictures->items.push_back(
            filtered(*pictures, "C:", R"(.*\.()" + std::string(types) + ")", true));
    mail->info.using_local_storage = true;
    mail->localStoragePath = "E:\\LocalStorage";
    mail->info.local_storage_data_size = 17 * gibibyte;
    mail->info.local_storage_file_count = 318;
}

/// Sets that need attention, and one that this client doesn't list.
void addOddSets(World& world) {
    auto lost = describedSet(world, {"Old workstation", {}, 54 * gibibyte, 40'127});
    lost.info.computer = "HP-8200";
    lost.source = sources::oldWorkstation;
    lost.credentials = {};
    lost.info.retention_rule_id = noRule;
    lost.info.schedule_id = noSchedule;
    lost.info.last_sync_time = seconds(world.now()) - 3 * 86'400;
    world.addSet(std::move(lost));

    auto stale = describedSet(world, {"Tax returns", {"D:\\Tax"}, 2 * gibibyte, 1'940});
    stale.info.in_sync = false;
    stale.info.retention_rule_id = noRule;
    stale.mostGenerations = 7;
    world.addSet(std::move(stale));

    auto database = describedSet(world, {"Inventory", {"INVENTORY"}, gibibyte, 3});
    database.info.data_type = BackupDataType::MSSQLServer;
    world.addSet(std::move(database));

    auto fresh = describedSet(world, {"Music", {"D:\\Music"}, 0, 0});
    fresh.mostGenerations = 1;
    fresh.info.schedule_id = noSchedule;
    world.addSet(std::move(fresh));

    // Out of sync, because it is missing from the agent's database.
    auto orphan = describedSet(world, {"Letters before 2019", {"D:\\Letters"}, gibibyte, 5'120});
    orphan.info.in_sync = false;
    world.configuration.orphans.push_back(std::make_shared<BackupSetState>(std::move(orphan)));
}

void populateWindows(World& world, bool central) {
    describeAgent(world, central, false);
    History history(world);
    addDiligentSets(world, history);
    history.adminRuns(45);
    history.write();
    addOddSets(world);
    if (central)
        for (std::size_t i = 0; i < 3; ++i)
            world.sets()[i]->info.is_created_by_policy = true;
    ActivityPlan plan = world.backupOf(world.sets()[1], "anna");
    plan.files = 3'120;
    plan.bytes = 6 * gibibyte;
    plan.duration = 420'000;
    world.start(std::move(plan));
    world.keepBusy(quarterOfAnHour);
}

/// Assigns the set to that computer, with a login that is valid there.
void belongTo(BackupSetState& set, const SourceComputer& computer) {
    set.source = computer.name;
    set.info.computer = lastName(computer.name);
    set.ofWindows = computer.kind == LoginKind::Windows;
    set.credentials = {};
    set.credentials.kind = computer.kind;
    set.credentials.user = "backup";
    set.credentials.password = sources::password;
    for (ItemState& item : set.items)
        item.computer = computer.name;
}

void populateUnix(World& world) {
    describeAgent(world, false, false);
    History history(world);
    const auto home = world.addSet(
        describedSet(world, {"Home directories", {"/\\home"}, 128 * gibibyte, 512'303}));
    const auto settings = world.addSet(
        describedSet(world, {"System settings", {"/\\etc", "/\\usr\\local"}, gibibyte, 9'120}));
    history.dailyBackups(home, 30, 2);
    history.dailyBackups(settings, 30, 3);
    history.adminRuns(30);
    history.write();

    auto site = describedSet(world, {"Web site", {"/\\var\\www"}, 3 * gibibyte, 21'377});
    belongTo(site, *world.network.computer(std::string(sources::webServer)));
    site.credentials.keyFile = sources::keyFile;
    site.credentials.passphrase = sources::passphrase;
    site.credentials.sudoUser = "root";
    site.credentials.sudoPassword = sources::password;
    world.addSet(std::move(site));

    auto photos = describedSet(world, {"Photos", {"/\\volume1"}, 71 * gibibyte, 33'090});
    belongTo(photos, *world.network.computer(std::string(sources::storage)));
    world.addSet(std::move(photos));
}

void populateLarge(World& world) {
    describeAgent(world, false, false);
    constexpr int setCount = 2'000;
    constexpr std::size_t rowCount = 100'000;
    for (int i = 1; i <= setCount; ++i) {
        const std::string number = std::to_string(i);
        auto set =
            describedSet(world, {"Documents of department " + number,
                                 {"D:\\Departments\\" + number},
                                 world.random().between(1, 400) * gibibyte,
                                 static_cast<std::int32_t>(world.random().between(1'000, 90'000))});
        set.info.computer = "WS-" + std::string(4 - number.size(), '0') + number;
        set.source.clear();
        world.addSet(std::move(set));
    }
    History history(world);
    history.bulk(rowCount);
    history.write();
}

void addStoredSet(World& world, Storage storage) {
    auto set = describedSet(world, {std::string(nameOf(storage)), {"C:", "D:"}, 0, 0});
    const auto backups = backupTimes(seconds(world.now()));
    set.stored = makeStorage(storage, backups);
    takeFigures(set);
    const auto& info = set.info;
    for (const std::int32_t time : backups)
        set.sessions.push_back(
            {time - 600, time, info.online_file_count, info.online_data_size, 0});
    set.info.last_backup = set.info.last_successful_backup = backups.back();
    set.info.last_sync_time = backups.back();
    world.addSet(std::move(set));
}

void populateStored(World& world, const std::vector<Storage>& storages) {
    describeAgent(world, false, false);
    world.idsPerView = std::int64_t{1} << 32;
    for (const Storage storage : storages)
        addStoredSet(world, storage);
}

void populateBare(World& world, bool firstRun) {
    describeAgent(world, false, firstRun);
    if (firstRun)
        world.customer = {};
}

} // namespace

std::vector<std::pair<std::string_view, Scenario>> allScenarios() {
    return {names.begin(), names.end()};
}

std::optional<Scenario> scenarioNamed(std::string_view name) {
    for (const auto& [known, scenario] : names)
        if (known == name)
            return scenario;
    return std::nullopt;
}

void populate(World& world, Scenario scenario, std::optional<std::int32_t> osType) {
    const bool isUnix = scenario == Scenario::Unix;
    world.clientType = scenario == Scenario::Notebook ? 14 : 8;
    world.computer = isUnix ? "build01.example.net" : "ANNA-LAPTOP";
    world.system = ClientOSType(osType.value_or(isUnix ? 1 : 0));
    world.userEmails = {{"demo", "", "demo@example.net"}, {"anna", "OFFICE", "anna@example.net"}};
    addSources(world);
    addPlans(world);
    switch (scenario) {
    case Scenario::Default:
    case Scenario::Notebook:
        return populateWindows(world, false);
    case Scenario::Central:
        return populateWindows(world, true);
    case Scenario::Unix:
        return populateUnix(world);
    case Scenario::Large:
        return populateLarge(world);
    case Scenario::Empty:
        return populateBare(world, false);
    case Scenario::FirstRun:
        return populateBare(world, true);
    case Scenario::Generations:
        return populateStored(world, {Storage::Generations});
    case Scenario::Groups:
        return populateStored(world, {Storage::Groups});
    case Scenario::Shares:
        return populateStored(world, {Storage::Shares});
    case Scenario::Failing:
        return populateStored(world, {Storage::Failing});
    case Scenario::ManyFiles:
        return populateStored(world, {Storage::ManyFiles});
    case Scenario::Deep:
        return populateStored(world, {Storage::Deep});
    case Scenario::Storages:
        return populateStored(world, {allStorages.begin(), allStorages.end()});
    case Scenario::Overdue:
    case Scenario::Failed:
    case Scenario::Stalled:
    case Scenario::Overlapping:
    case Scenario::ManyFolders:
        describeAgent(world, false, false);
        return populateForHealth(world, scenario);
    }
}

} // namespace simulator
