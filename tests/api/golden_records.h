// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

/// One message of each record, typed out in wire form. Within a record all fields have different
/// values.
namespace golden {

inline const char running_activity_info[] = "M t 00 24 'com.norvel.api.running_activity_info'"
                                            " S 00 0B 'activity_id' I 00 00 00 47"
                                            " S 00 04 'type' I 00 00 00 08"
                                            " S 00 0B 'description' S 00 07 'Größe €'"
                                            " S 00 04 'user' S 00 04 'anna'"
                                            " S 00 0A 'start_time' I 65 53 F1 00"
                                            " S 00 06 'set_id' I 00 00 00 03"
                                            " S 00 0F 'files_processed' I 00 00 00 0A"
                                            " S 00 0A 'files_left' I 00 00 00 0B"
                                            " S 00 0E 'size_processed' L 00 00 00 01 2A 05 F2 00"
                                            " S 00 09 'size_left' L 00 00 00 01 2A 05 F2 01"
                                            " S 00 0A 'status_msg' S 00 05 'läuft'"
                                            " S 00 0B 'process_dir' S 00 08 'C:\\Users'"
                                            " S 00 08 'finished' T"
                                            " z";

inline const char activity_log_info[] = "M t 00 20 'com.norvel.api.activity_log_info'"
                                        " S 00 02 'id' I 00 00 00 48"
                                        " S 00 04 'type' I 00 00 00 0E"
                                        " S 00 0A 'start_time' I 65 53 F1 01"
                                        " S 00 08 'end_time' I 65 53 F1 02"
                                        " S 00 0A 'completion' I 00 00 00 23"
                                        " S 00 0B 'description' S 00 09 'nächtlich'"
                                        " S 00 04 'user' S 00 03 'bob'"
                                        " S 00 06 'errors' I 00 00 00 01"
                                        " S 00 08 'warnings' I 00 00 00 02"
                                        " S 00 06 'set_id' I 00 00 00 04"
                                        " S 00 0B 'schedule_id' I FF FF FF FF"
                                        " S 00 0A 'file_count' I 00 00 00 0C"
                                        " S 00 09 'data_size' L 00 00 00 01 65 A0 BC 00"
                                        " S 00 07 'node_id' I 00 00 00 05"
                                        " S 00 0C 'transmit_amt' L 00 00 00 01 65 A0 BC 01"
                                        " S 00 10 'net_transmit_amt' L FF FF FF FF FF FF FF FE"
                                        " z";

inline const char event_log_info[] = "M t 00 1D 'com.norvel.api.event_log_info'"
                                     " S 00 04 'type' I 00 00 00 02"
                                     " S 00 04 'when' I 65 53 F1 03"
                                     " S 00 04 'user' S 00 03 'eva'"
                                     " S 00 08 'category' I 00 00 00 06"
                                     " S 00 08 'event_id' I 00 00 00 65"
                                     " S 00 0B 'activity_id' I 00 00 00 49"
                                     " S 00 0A 'extra_info' S 00 0C 'Zusätzlich 𝄞'"
                                     " S 00 0B 'description' S 00 09 'Disk full'"
                                     " S 00 07 'node_id' I 00 00 00 06"
                                     " z";

inline const char backup_set_info[] = "M t 00 1E 'com.norvel.api.backup_set_info'"
                                      " S 00 02 'id' I 00 00 00 09"
                                      " S 00 08 'computer' S 00 07 'RECHNER'"
                                      " S 00 04 'name' S 00 04 'Büro'"
                                      " S 00 09 'data_type' I 00 00 00 01"
                                      " S 00 08 'set_type' I 00 00 00 03"
                                      " S 00 09 'is_active' T"
                                      " S 00 07 'in_sync' F"
                                      " S 00 09 'has_items' T"
                                      " S 00 14 'is_created_by_policy' F"
                                      " S 00 06 'is_cdp' T"
                                      " S 00 08 'owner_id' I 00 00 00 15"
                                      " S 00 0A 'owner_name' S 00 04 'Jörg'"
                                      " S 00 11 'retention_rule_id' I 00 00 00 16"
                                      " S 00 13 'retention_rule_name' S 00 06 'Keep 7'"
                                      " S 00 0B 'schedule_id' I 00 00 00 17"
                                      " S 00 0D 'schedule_name' S 00 07 'Nightly'"
                                      " S 00 13 'using_local_storage' T"
                                      " S 00 0E 'last_sync_time' I 65 53 F1 04"
                                      " S 00 16 'last_successful_backup' I 65 53 F1 05"
                                      " S 00 0B 'last_backup' I 65 53 F1 06"
                                      " S 00 17 'tarnsys_compressed_size' L 00 00 00 01 A1 3B 86 00"
                                      " S 00 10 'online_data_size' L 00 00 00 01 A1 3B 86 01"
                                      " S 00 11 'online_file_count' I 00 00 00 18"
                                      " S 00 17 'local_storage_data_size' L 00 00 00 01 A1 3B 86 02"
                                      " S 00 18 'local_storage_file_count' I 00 00 00 19"
                                      " z";

inline const char backup_set_status[] =
    "M t 00 20 'com.norvel.api.backup_set_status'"
    " S 00 0E 'last_sync_time' I 65 53 F1 07"
    " S 00 16 'last_successful_backup' I 65 53 F1 08"
    " S 00 11 'on_line_data_size' L 00 00 00 01 DC D6 50 00"
    " S 00 12 'on_line_file_count' I 00 00 00 1F"
    " S 00 17 'local_storage_data_size' L 00 00 00 01 DC D6 50 01"
    " S 00 18 'local_storage_file_count' I 00 00 00 20"
    " S 00 1A 'tarnsystem_compressed_size' L 00 00 00 01 DC D6 50 02"
    " z";

inline const char backup_sessions[] = "M t 00 1E 'com.norvel.api.backup_sessions'"
                                      " S 00 0A 'start_time' I 65 53 F1 09"
                                      " S 00 08 'end_time' I 65 53 F1 0A"
                                      " S 00 05 'files' I 00 00 00 29"
                                      " S 00 04 'size' L 00 00 00 02 18 71 1A 00"
                                      " S 00 0B 'activity_id' I 00 00 00 2A"
                                      " z";

inline const char tarn_client_info[] = "M t 00 1F 'com.norvel.api.tarn_client_info'"
                                       " S 00 04 'name' S 00 05 'Größe'"
                                       " S 00 05 'value' S 00 00"
                                       " z";

inline const char backup_set_overview_info[] =
    "M t 00 27 'com.norvel.api.backup_set_overview_info'"
    " S 00 09 'data_type' I 00 00 00 04"
    " S 00 06 'status'"
    " M t 00 20 'com.norvel.api.backup_set_status'"
    " S 00 0E 'last_sync_time' I 65 53 F1 07"
    " S 00 16 'last_successful_backup' I 65 53 F1 08"
    " S 00 11 'on_line_data_size' L 00 00 00 01 DC D6 50 00"
    " S 00 12 'on_line_file_count' I 00 00 00 1F"
    " S 00 17 'local_storage_data_size' L 00 00 00 01 DC D6 50 01"
    " S 00 18 'local_storage_file_count' I 00 00 00 20"
    " S 00 1A 'tarnsystem_compressed_size' L 00 00 00 01 DC D6 50 02"
    " z"

    " S 00 07 'min_gen' I FF FF FF FF"
    " S 00 07 'max_gen' I 00 00 00 33"
    " S 00 11 'retention_rule_id' I 00 00 00 34"
    " S 00 13 'retention_rule_name' S 00 06 'Sieben'"
    " S 00 0B 'schedule_id' I 00 00 00 35"
    " S 00 0D 'schedule_name' S 00 07 'Täglich'"
    " S 00 0D 'schedule_type' I 00 00 00 02"
    " z";

inline const char sspi_login_info[] =
    "M t 00 1E 'com.norvel.api.sspi_login_info'"
    " S 00 07 'context' B 00 06 02 00 00 00 A1 B2"
    " S 00 04 'user' S 00 04 'anna'"
    " S 00 06 'domain' S 00 04 'BÜRO'"
    " S 00 04 'conn' r t 00 1F 'com.norvel.api.ClientConnection' S 00 0C 'https://a/s7'"
    " z";

} // namespace golden
