// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <string>
#include <utility>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include "api/client_connection.h"
#include "hessian/value.h"
#include "tests/api/golden_records.h"
#include "tests/api/record_checks.h"
#include "tests/support/bytes.h"
#include "transport/i_call_dispatcher.h"

namespace {

/// A reference as held by the agent's side of a connection.
struct Handle {
    std::string url;
};

} // namespace

template <>
struct hessianser::RemoteTraits<Handle> {
    static std::string typeName() { return "com.norvel.api.ClientConnection"; }
    static const std::string* url(const Handle& handle) { return &handle.url; }
    static Handle fromUrl(std::string url) { return {std::move(url)}; }
};

namespace {

using namespace hessiancln;
using support::bytes;
using support::printable;

/// The only record with a reference, as the agent's side writes it.
using LoginAnswer = basic_sspi_login_info<Handle>;

class Nowhere : public ICallDispatcher {
public:
    Nowhere()
        : ICallDispatcher(0, "") {}
    std::string sendRequest(const std::string&, const std::string&) override { return ""; }
};

TEST(Records, running_activity_info) {
    const auto r = decodeRecord<running_activity_info>(golden::running_activity_info);
    EXPECT_EQ(r.activity_id, 71);
    EXPECT_EQ(r.type, ActivityType::DiskTapeRequest);
    EXPECT_EQ(r.description, "Größe €");
    EXPECT_EQ(r.user, "anna");
    EXPECT_EQ(r.start_time, 1700000000);
    EXPECT_EQ(r.set_id, 3);
    EXPECT_EQ(r.files_processed, 10);
    EXPECT_EQ(r.files_left, 11);
    EXPECT_EQ(r.size_processed, 5000000000);
    EXPECT_EQ(r.size_left, 5000000001);
    EXPECT_EQ(r.status_msg, "läuft");
    EXPECT_EQ(r.process_dir, "C:\\Users");
    EXPECT_TRUE(r.finished);
}

TEST(Records, activity_log_info) {
    const auto r = decodeRecord<activity_log_info>(golden::activity_log_info);
    EXPECT_EQ(r.id, 72);
    EXPECT_EQ(r.type, ActivityType::OrlopRestore);
    EXPECT_EQ(r.start_time, 1700000001);
    EXPECT_EQ(r.end_time, 1700000002);
    EXPECT_EQ(r.completion, ActivityCompletion{35});
    EXPECT_EQ(r.description, "nächtlich");
    EXPECT_EQ(r.user, "bob");
    EXPECT_EQ(r.errors, 1);
    EXPECT_EQ(r.warnings, 2);
    EXPECT_EQ(r.set_id, 4);
    EXPECT_EQ(r.schedule_id, -1);
    EXPECT_EQ(r.file_count, 12);
    EXPECT_EQ(r.data_size, 6000000000);
    EXPECT_EQ(r.node_id, 5);
    EXPECT_EQ(r.transmit_amt, 6000000001);
    EXPECT_EQ(r.net_transmit_amt, -2);
}

TEST(Records, event_log_info) {
    const auto r = decodeRecord<event_log_info>(golden::event_log_info);
    EXPECT_EQ(r.type, EventLogType::Error);
    EXPECT_EQ(r.when, 1700000003);
    EXPECT_EQ(r.user, "eva");
    EXPECT_EQ(r.category, EventCategory::OperatingSystem);
    EXPECT_EQ(r.event_id, 101);
    EXPECT_EQ(r.activity_id, 73);
    EXPECT_EQ(r.extra_info, "Zusätzlich 𝄞");
    EXPECT_EQ(r.description, "Disk full");
    EXPECT_EQ(r.node_id, 6);
}

TEST(Records, backup_set_info) {
    const auto r = decodeRecord<backup_set_info>(golden::backup_set_info);
    EXPECT_EQ(r.id, 9);
    EXPECT_EQ(r.computer, "RECHNER");
    EXPECT_EQ(r.name, "Büro");
    EXPECT_EQ(r.data_type, BackupDataType::MSSQLServer);
    EXPECT_EQ(r.set_type, BackupSetType{3});
    EXPECT_TRUE(r.is_active);
    EXPECT_FALSE(r.in_sync);
    EXPECT_TRUE(r.has_items);
    EXPECT_FALSE(r.is_created_by_policy);
    EXPECT_TRUE(r.is_cdp);
    EXPECT_EQ(r.owner_id, 21);
    EXPECT_EQ(r.owner_name, "Jörg");
    EXPECT_EQ(r.retention_rule_id, 22);
    EXPECT_EQ(r.retention_rule_name, "Keep 7");
    EXPECT_EQ(r.schedule_id, 23);
    EXPECT_EQ(r.schedule_name, "Nightly");
    EXPECT_TRUE(r.using_local_storage);
    EXPECT_EQ(r.last_sync_time, 1700000004);
    EXPECT_EQ(r.last_successful_backup, 1700000005);
    EXPECT_EQ(r.last_backup, 1700000006);
    EXPECT_EQ(r.tarnsys_compressed_size, 7000000000);
    EXPECT_EQ(r.online_data_size, 7000000001);
    EXPECT_EQ(r.online_file_count, 24);
    EXPECT_EQ(r.local_storage_data_size, 7000000002);
    EXPECT_EQ(r.local_storage_file_count, 25);
}

TEST(Records, backup_set_status) {
    const auto r = decodeRecord<backup_set_status>(golden::backup_set_status);
    EXPECT_EQ(r.last_sync_time, 1700000007);
    EXPECT_EQ(r.last_successful_backup, 1700000008);
    EXPECT_EQ(r.on_line_data_size, 8000000000);
    EXPECT_EQ(r.on_line_file_count, 31);
    EXPECT_EQ(r.local_storage_data_size, 8000000001);
    EXPECT_EQ(r.local_storage_file_count, 32);
    EXPECT_EQ(r.tarnsystem_compressed_size, 8000000002);
}

TEST(Records, backup_sessions) {
    const auto r = decodeRecord<backup_sessions>(golden::backup_sessions);
    EXPECT_EQ(r.start_time, 1700000009);
    EXPECT_EQ(r.end_time, 1700000010);
    EXPECT_EQ(r.files, 41);
    EXPECT_EQ(r.size, 9000000000);
    EXPECT_EQ(r.activity_id, 42);
}

TEST(Records, tarn_client_info) {
    const auto r = decodeRecord<tarn_client_info>(golden::tarn_client_info);
    EXPECT_EQ(r.name, "Größe");
    EXPECT_EQ(r.value, "");
}

TEST(Records, backup_set_overview_info) {
    const auto r = decodeRecord<backup_set_overview_info>(golden::backup_set_overview_info);
    EXPECT_EQ(r.data_type, BackupDataType::Permissions);
    EXPECT_EQ(r.min_gen, -1);
    EXPECT_EQ(r.max_gen, 51);
    EXPECT_EQ(r.retention_rule_id, 52);
    EXPECT_EQ(r.retention_rule_name, "Sieben");
    EXPECT_EQ(r.schedule_id, 53);
    EXPECT_EQ(r.schedule_name, "Täglich");
    EXPECT_EQ(r.schedule_type, ScheduleDetailType::Weekly);
    EXPECT_EQ(r.status.last_sync_time, 1700000007);
    EXPECT_EQ(r.status.last_successful_backup, 1700000008);
    EXPECT_EQ(r.status.on_line_data_size, 8000000000);
    EXPECT_EQ(r.status.on_line_file_count, 31);
    EXPECT_EQ(r.status.local_storage_data_size, 8000000001);
    EXPECT_EQ(r.status.local_storage_file_count, 32);
    EXPECT_EQ(r.status.tarnsystem_compressed_size, 8000000002);
}

TEST(Records, sspi_login_info) {
    const auto r = decodeRecord<sspi_login_info>(golden::sspi_login_info);
    EXPECT_EQ(r.context, (hessianser::Binary{0x02, 0x00, 0x00, 0x00, 0xA1, 0xB2}));
    EXPECT_EQ(r.user, "anna");
    EXPECT_EQ(r.domain, "BÜRO");
    ASSERT_TRUE(r.conn);
    EXPECT_EQ(r.conn->url(), "https://a/s7");
    // There is no object behind the reference, so its release must go nowhere.
    r.conn->setDispatcher(boost::make_shared<Nowhere>());
}

/// Runs `check.operator()<R>(golden message)` for each record without references.
template <class Check>
void forEachRecord(Check check) {
    check.template operator()<tarn_client_info>(golden::tarn_client_info);
    check.template operator()<running_activity_info>(golden::running_activity_info);
    check.template operator()<activity_log_info>(golden::activity_log_info);
    check.template operator()<event_log_info>(golden::event_log_info);
    check.template operator()<backup_set_info>(golden::backup_set_info);
    check.template operator()<backup_set_status>(golden::backup_set_status);
    check.template operator()<backup_set_overview_info>(golden::backup_set_overview_info);
    check.template operator()<backup_sessions>(golden::backup_sessions);
    check.template operator()<LoginAnswer>(golden::sspi_login_info);
}

TEST(Records, AreWrittenInTheOrderOfTheirFieldsAndInTheirSize) {
    forEachRecord([]<class R>(const char* notation) {
        const auto record = decodeRecord<R>(notation);
        std::string out;
        hessianser::writeValue(record, out);
        EXPECT_EQ(printable(out), printable(bytes(notation)));
        EXPECT_EQ(hessianser::sizeOfValue(record), out.size());
    });
}

TEST(Records, EmptyOnesStillHoldEveryField) {
    std::string empty;
    hessianser::writeValue(tarn_client_info(), empty);
    EXPECT_EQ(printable(empty),
              printable(bytes("M t 00 1F 'com.norvel.api.tarn_client_info' S 00 04 'name' S 00 00 "
                              "S 00 05 'value' S 00 00 z")));
    forEachRecord([]<class R>(const char*) {
        std::string out;
        hessianser::writeValue(R(), out);
        EXPECT_EQ(hessianser::sizeOfValue(R()), out.size());
    });
}

TEST(Records, AnUnknownKeyIsRefusedEvenAsTheLastOne) {
    forEachRecord([]<class R>(const char* notation) {
        std::string message = bytes(notation);
        message.pop_back();
        message += bytes("S 00 05 'extra' N z");
        EXPECT_EQ(recordRefusal<R>(message), "Unknown map field type") << R::wireType;
    });
}

TEST(Records, AnUnknownKeyIsRefusedAsTheFirstOne) {
    forEachRecord([]<class R>(const char* notation) {
        const std::size_t head = 4 + R::wireType.size();
        std::string message = bytes(notation);
        message.insert(head, bytes("S 00 05 'extra' N"));
        EXPECT_EQ(recordRefusal<R>(message), "Unknown map field type") << R::wireType;
    });
}

TEST(Records, AnUnknownKeyInTheNestedRecordIsRefused) {
    std::string message = bytes(golden::backup_set_overview_info);
    const std::string last = bytes("S 00 1A 'tarnsystem_compressed_size'");
    message.insert(message.find(last), bytes("S 00 05 'extra' N"));
    EXPECT_EQ(recordRefusal<backup_set_overview_info>(message), "Unknown map field type");
}

TEST(Records, KeysDifferByCase) {
    EXPECT_EQ(recordRefusal<tarn_client_info>(
                  bytes("M t 00 1F 'com.norvel.api.tarn_client_info' S 00 04 'Name' S 00 00 z")),
              "Unknown map field type");
}

TEST(Records, TheLikeKeysOfSetAndStatusAreSpeltEachInItsWay) {
    EXPECT_EQ(recordRefusal<backup_set_status>(
                  bytes("M t 00 20 'com.norvel.api.backup_set_status' S 00 10 "
                        "'online_data_size' L 00 00 00 00 00 00 00 01 z")),
              "Unknown map field type");
    EXPECT_EQ(
        recordRefusal<backup_set_info>(bytes("M t 00 1E 'com.norvel.api.backup_set_info' S 00 11 "
                                             "'on_line_data_size' L 00 00 00 00 00 00 00 01 z")),
        "Unknown map field type");
    EXPECT_EQ(recordRefusal<backup_set_status>(
                  bytes("M t 00 20 'com.norvel.api.backup_set_status' S 00 17 "
                        "'tarnsys_compressed_size' L 00 00 00 00 00 00 00 01 z")),
              "Unknown map field type");
    EXPECT_EQ(recordRefusal<backup_set_info>(
                  bytes("M t 00 1E 'com.norvel.api.backup_set_info' S 00 1A "
                        "'tarnsystem_compressed_size' L 00 00 00 00 00 00 00 01 z")),
              "Unknown map field type");
}

TEST(Records, FieldsMayBeMissing) {
    const auto r = decodeRecord<backup_sessions>(
        "M t 00 1E 'com.norvel.api.backup_sessions' S 00 05 'files' I 00 00 00 03 z");
    EXPECT_EQ(r.files, 3);
    EXPECT_EQ(r.start_time, 0);
    EXPECT_EQ(r.end_time, 0);
    EXPECT_EQ(r.size, 0);
    EXPECT_EQ(r.activity_id, 0);
}

TEST(Records, FieldsMayComeInAnyOrder) {
    const auto r = decodeRecord<backup_sessions>(
        "M t 00 1E 'com.norvel.api.backup_sessions'"
        " S 00 0B 'activity_id' I 00 00 00 2A S 00 04 'size' L 00 00 00 02 18 71 1A 00"
        " S 00 05 'files' I 00 00 00 29 S 00 08 'end_time' I 00 00 00 0C"
        " S 00 0A 'start_time' I 00 00 00 0B z");
    EXPECT_EQ(r.start_time, 11);
    EXPECT_EQ(r.end_time, 12);
    EXPECT_EQ(r.files, 41);
    EXPECT_EQ(r.size, 9000000000);
    EXPECT_EQ(r.activity_id, 42);
}

TEST(Records, AnotherRecordInTheirPlaceIsRefused) {
    EXPECT_EQ(recordRefusal<backup_set_info>(bytes(golden::backup_sessions)),
              "Map type different than the expected type (content difference)");
    EXPECT_EQ(recordRefusal<backup_set_info>(bytes(golden::event_log_info)),
              "Map type different than the expected type (length difference)");
}

TEST(Records, AreRefusedWhereverTheyAreCut) {
    forEachRecord([]<class R>(const char* notation) {
        const std::string message = bytes(notation);
        for (std::size_t length = 0; length < message.size(); ++length)
            EXPECT_NE(recordRefusal<R>(message.substr(0, length)), "")
                << R::wireType << ' ' << length;
    });
}

} // namespace
