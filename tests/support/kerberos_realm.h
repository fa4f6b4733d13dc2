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

/// A private MIT Kerberos realm: a key distribution center on a free port of 127.0.0.1, the service
/// that the client requests, and a user. All its files are in a temporary folder. During its
/// lifetime, the environment of this process and its children points to it and to no other
/// Kerberos. Initially there are no tickets.
///
/// Create it before starting other threads. Needs neither root nor a network. Throws
/// `std::runtime_error` with the output of the failing program.
class KerberosRealm {
public:
    static constexpr const char* name = "TARN.TEST";
    static constexpr const char* user = "anna";

    KerberosRealm();
    ~KerberosRealm();
    KerberosRealm(const KerberosRealm&) = delete;
    KerberosRealm& operator=(const KerberosRealm&) = delete;

    /// The service's keys; and a key table with a wrong key of the same name and version.
    std::string keyTable() const { return file("service.keytab"); }
    std::string wrongKeyTable();

    /// Names are UTF-8.
    void addUser(const std::string& userName);

    /// Gets the user a ticket-granting ticket, which is valid for ten hours. The user needs no more
    /// than that: the ticket for the service is derived from it.
    void getTicket(const std::string& userName = user);
    /// Gets a ticket for the user, and waits until it has expired, which takes seconds.
    void getExpiredTicket();
    /// Adds a ticket for the service, as after a login to it.
    void getServiceTicket();
    void destroyTicket();
    /// Writes the user's keys into the client key table, with which a logon gets its own ticket.
    void writeClientKeys();

    /// From now on no new tickets are issued.
    void stopKdc();
    /// The same, but requests reach a KDC, which never answers.
    void silenceKdc();
    /// Whether a request has reached the silent KDC.
    bool silentKdcWasAsked() const;
    /// From now on the clock of the KDC is ahead by an hour. Needs libfaketime.
    void restartKdcAhead();

    /// A file in the temporary folder.
    std::string file(const std::string& fileName) const { return (folder_ / fileName).string(); }

private:
    class SilentKdc;

    void setVariable(const std::string& variable, const std::string& value);
    void restoreVariable(const std::string& variable);
    void writeConfiguration(std::uint16_t port);
    void startKdc();
    void administer(const std::string& query);

    std::filesystem::path folder_;
    std::map<std::string, std::optional<std::string>> former_;
    std::unique_ptr<ChildProcess> kdc_;
    std::unique_ptr<SilentKdc> silent_;
};

} // namespace support
