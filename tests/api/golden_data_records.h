// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

/// One message of each record of browsers, retention rules and views, as in golden_records.h.
namespace golden {

inline const char browse_item_info[] = "M t 00 1F 'com.norvel.api.browse_item_info'"
                                       " S 00 04 'type' I 00 00 00 07"
                                       " S 00 04 'name' S 00 06 'Bücher'"
                                       " S 00 06 'isfile' T"
                                       " S 00 08 'datasize' L 00 00 00 01 2A 05 F2 00"
                                       " z";

inline const char net_item_info[] = "M t 00 1C 'com.norvel.api.net_item_info'"
                                    " S 00 04 'name' S 00 09 'RECHNER-Ö'"
                                    " S 00 04 'type' I 00 00 00 01"
                                    " z";

inline const char PreDefinedBrowseItem[] = "M t 00 23 'com.norvel.api.PreDefinedBrowseItem'"
                                           " S 00 04 'path' S 00 0C 'C:\\Users\\zoë'"
                                           " S 00 0B 'description' S 00 10 'Eigene Dateien €'"
                                           " z";

inline const char retention_time_span[] = "M t 00 22 'com.norvel.api.retention_time_span'"
                                          " S 00 06 'period' I 00 00 00 0E"
                                          " S 00 04 'unit' I 00 00 00 04"
                                          " z";

inline const char SelectableItem[] = "M t 00 1D 'com.norvel.api.SelectableItem'"
                                     " S 00 02 'id' L 00 00 00 01 2A 05 F2 03"
                                     " S 00 04 'name' S 00 0B 'Übersicht 𝄞'"
                                     " S 00 09 'data_type' I 00 00 00 03"
                                     " S 00 07 'is_file' T"
                                     " S 00 0D 'is_selectable' F"
                                     " z";

inline const char file_generations[] = "M t 00 1F 'com.norvel.api.file_generations'"
                                       " S 00 11 'modification_time' I 65 53 F1 00"
                                       " S 00 0B 'backup_time' I 65 53 F1 01"
                                       " S 00 09 'data_size' L 00 00 00 01 65 A0 BC 00"
                                       " S 00 0B 'stream_size' L 00 00 00 01 65 A0 BC 01"
                                       " z";

inline const char selected_shares[] = "M t 00 1E 'com.norvel.api.selected_shares'"
                                      " S 00 0A 'share_name' S 00 04 'süd$'"
                                      " S 00 10 'truncatable_path' S 00 0C 'C:\\Users\\ann'"
                                      " z";

inline const char share_mapping[] = "M t 00 1C 'com.norvel.api.share_mapping'"
                                    " S 00 0C 'source_share' S 00 04 'süd$'"
                                    " S 00 10 'destination_path' S 00 0B '/srv/rück €'"
                                    " S 00 0E 'truncate_level' I 00 00 00 02"
                                    " z";

} // namespace golden
