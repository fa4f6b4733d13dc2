// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

/// One message of each record of the agent's configuration, as in golden_records.h.
namespace golden {

inline const char tarnc_reg_info[] = "M t 00 1D 'com.norvel.api.tarnc_reg_info'"
                                     " S 00 0D 'customer_name' S 00 10 'Bäckerei Größe €'"
                                     " S 00 0B 'account_num' S 00 06 'ACC-17'"
                                     " S 00 0A 'client_num' S 00 0C 'ABCDEF012345'"
                                     " S 00 0F 'private_key_enc' I 00 00 00 07"
                                     " S 00 0F 'account_key_enc' I 00 00 00 01"
                                     " S 00 0B 'private_key' S 00 0B 'schlüssel 𝄞'"
                                     " S 00 0B 'account_key' S 00 07 'zweiter'"
                                     " S 00 0F 'tarnsys_ip_addr' S 00 15 '10.0.0.1\\;süd.example'"
                                     " S 00 0E 'escrow_enc_key' T"
                                     " z";

inline const char ad_user_info[] = "M t 00 1B 'com.norvel.api.ad_user_info'"
                                   " S 00 08 'username' S 00 04 'jörg'"
                                   " S 00 08 'password' S 00 0A 'pässwört €'"
                                   " S 00 04 'save' T"
                                   " z";

inline const char user_info[] = "M t 00 18 'com.norvel.api.user_info'"
                                " S 00 0C 'country_code' I 00 00 01 14"
                                " S 00 10 'num_of_employees' I 00 00 00 03"
                                " S 00 0D 'industry_code' I 00 00 00 08"
                                " z";

inline const char user_email[] = "M t 00 19 'com.norvel.api.user_email'"
                                 " S 00 08 'username' S 00 03 'zoë'"
                                 " S 00 06 'domain' S 00 04 'BÜRO'"
                                 " S 00 05 'email' S 00 0F 'zoe@example.org'"
                                 " z";

inline const char time_in_day[] = "M t 00 1A 'com.norvel.api.time_in_day'"
                                  " S 00 04 'hour' I 00 00 00 1E"
                                  " S 00 06 'minute' I 00 00 00 2D"
                                  " S 00 06 'second' I 00 00 00 3B"
                                  " z";

} // namespace golden
