// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "tests/support/child_process.h"

namespace support {

/// An MIT Kerberos realm of one's own: a key distribution center on a free port of 127.0.0.1, the
/// service that the client asks for, and a user. All its files are in a temporary folder. While it
/// lives, the environment of this process, and of those that it starts, points to it and to no
/// other Kerberos. Nobody has a ticket at first.
///
/// Make it before there are other threads. Needs neither root nor a network. Raises
/// `std::runtime_error`, with what the failing program said.
class KerberosRealm {
public:
    static constexpr const char* name = "TARN.TEST";
    static constexpr const char* user = "anna";

    KerberosRealm();
    ~KerberosRealm();
    KerberosRealm(const KerberosRealm&) = delete;
    KerberosRealm& operator=(const KerberosRealm&) = delete;

    /// The service's keys; and a table with a key of the same name and version that is wrong.
    std::string keyTable() const { return file("service.keytab"); }
    std::string wrongKeyTable();

    /// Names are UTF-8.
    void addUser(const std::string& userName);

    /// Gets the user a ticket for the realm, which is valid for ten hours. The user needs no more
    /// than that: a ticket for the service comes of it.
    void getTicket(const std::string& userName = user);
    /// As after a login to the service: its ticket as well.
    void getServiceTicket();
    void destroyTicket();

    /// Nobody can have a new ticket from now on.
    void stopKdc() { kdc_.reset(); }

    /// A file in the temporary folder.
    std::string file(const std::string& fileName) const { return (folder_ / fileName).string(); }

private:
    void setVariable(const std::string& variable, const std::string& value);
    void writeConfiguration(std::uint16_t port);
    void startKdc();
    void administer(const std::string& query);

    std::filesystem::path folder_;
    std::map<std::string, std::optional<std::string>> former_;
    std::unique_ptr<ChildProcess> kdc_;
};

} // namespace support
