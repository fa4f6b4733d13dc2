// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/kerberos_realm.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace support {

namespace fs = std::filesystem;

namespace {

constexpr const char* service = "OstrandBakSvc/localhost";
constexpr const char* password = "correct horse";

/// A socket of 127.0.0.1.
class LoopbackSocket {
public:
    explicit LoopbackSocket(int type = SOCK_STREAM)
        : socket_(::socket(AF_INET, type | SOCK_CLOEXEC, 0)) {}
    LoopbackSocket(const LoopbackSocket&) = delete;
    LoopbackSocket& operator=(const LoopbackSocket&) = delete;
    ~LoopbackSocket() { ::close(socket_); }

    std::uint16_t freePort() const {
        sockaddr_in address{};
        socklen_t size = sizeof address;
        if (!bindTo(0) || ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size) != 0)
            throw std::runtime_error("no free port");
        return ntohs(address.sin_port);
    }

    bool bindTo(std::uint16_t port) const {
        const sockaddr_in address = at(port);
        return ::bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }

    void listen() const { ::listen(socket_, SOMAXCONN); }

    /// Whether a datagram or a connection has come in.
    bool wasReached() const {
        pollfd state{socket_, POLLIN, 0};
        return ::poll(&state, 1, 0) > 0;
    }

    bool reaches(std::uint16_t port) const {
        const sockaddr_in address = at(port);
        return ::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }

private:
    static sockaddr_in at(std::uint16_t port) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(port);
        return address;
    }

    int socket_;
};

fs::path temporaryFolder() {
    std::string path = (fs::temp_directory_path() / "tarn-realm-XXXXXX").string();
    if (!::mkdtemp(path.data()))
        throw std::runtime_error("no temporary folder");
    return path;
}

void writeFile(const std::string& path, const std::string& text) {
    std::ofstream(path) << text;
}

} // namespace

/// Takes requests by TCP and by UDP.
class KerberosRealm::SilentKdc {
public:
    SilentKdc()
        : port_(stream_.freePort()) {
        if (!datagrams_.bindTo(port_))
            throw std::runtime_error("no port that is free for both protocols");
        stream_.listen();
    }

    std::uint16_t port() const { return port_; }
    bool wasAsked() const { return stream_.wasReached() || datagrams_.wasReached(); }

private:
    const LoopbackSocket stream_;
    const LoopbackSocket datagrams_{SOCK_DGRAM};
    const std::uint16_t port_;
};

KerberosRealm::KerberosRealm()
    : folder_(temporaryFolder()) {
    setVariable("KRB5_CONFIG", file("krb5.conf"));
    setVariable("KRB5_KDC_PROFILE", file("kdc.conf"));
    setVariable("KRB5CCNAME", "FILE:" + file("tickets"));
    setVariable("KRB5_KTNAME", "FILE:" + file("no.keytab"));
    setVariable("KRB5_CLIENT_KTNAME", "FILE:" + file("client.keytab"));
    setVariable("KRB5RCACHENAME", "file2:" + file("replays"));
    writeConfiguration(0);
    runProgram("/usr/sbin/kdb5_util", {"-r", name, "create", "-s", "-P", "master"});
    administer(std::string("addprinc -randkey ") + service);
    administer("ktadd -k " + keyTable() + " " + service);
    addUser(user);
    startKdc();
}

KerberosRealm::~KerberosRealm() {
    stopKdc();
    while (!former_.empty())
        restoreVariable(former_.begin()->first);
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void KerberosRealm::setVariable(const std::string& variable, const std::string& value) {
    const char* former = std::getenv(variable.c_str());
    former_[variable] = former ? std::optional<std::string>(former) : std::nullopt;
    ::setenv(variable.c_str(), value.c_str(), 1);
}

void KerberosRealm::restoreVariable(const std::string& variable) {
    const auto former = former_.extract(variable);
    if (const std::optional<std::string>& value = former.mapped())
        ::setenv(former.key().c_str(), value->c_str(), 1);
    else
        ::unsetenv(former.key().c_str());
}

void KerberosRealm::writeConfiguration(std::uint16_t port) {
    const std::string address = "127.0.0.1:" + std::to_string(port);
    writeFile(file("krb5.conf"), std::string("[libdefaults]\n"
                                             "    default_realm = ") +
                                     name +
                                     "\n"
                                     "    dns_lookup_kdc = false\n"
                                     "    dns_lookup_realm = false\n"
                                     "    dns_canonicalize_hostname = false\n"
                                     "    rdns = false\n"
                                     "[realms]\n    " +
                                     name + " = {\n        kdc = " + address + "\n    }\n");
    writeFile(file("kdc.conf"), std::string("[realms]\n    ") + name + " = {\n" +
                                    "        database_name = " + file("principals") +
                                    "\n"
                                    "        key_stash_file = " +
                                    file("stash") +
                                    "\n"
                                    "        kdc_listen = " +
                                    address +
                                    "\n"
                                    "        kdc_tcp_listen = " +
                                    address +
                                    "\n    }\n"
                                    "[logging]\n    kdc = FILE:" +
                                    file("kdc.log") + "\n");
}

void KerberosRealm::startKdc() {
    using namespace std::chrono_literals;
    constexpr int attempts = 5;
    std::string said;
    for (int i = 0; i < attempts; ++i) {
        // Another program may take the port before the KDC listens on it.
        const std::uint16_t port = LoopbackSocket().freePort();
        writeConfiguration(port);
        kdc_ = std::make_unique<ChildProcess>("/usr/sbin/krb5kdc", std::vector<std::string>{"-n"});
        const auto deadline = std::chrono::steady_clock::now() + 10s;
        while (kdc_->runs() && std::chrono::steady_clock::now() < deadline) {
            if (LoopbackSocket().reaches(port))
                return;
            std::this_thread::sleep_for(5ms);
        }
        kdc_->signal(SIGKILL);
        said = kdc_->rest();
    }
    throw std::runtime_error("krb5kdc doesn't start: " + said);
}

void KerberosRealm::stopKdc() {
    kdc_.reset();
    silent_.reset();
}

void KerberosRealm::silenceKdc() {
    stopKdc();
    silent_ = std::make_unique<SilentKdc>();
    writeConfiguration(silent_->port());
}

bool KerberosRealm::silentKdcWasAsked() const {
    return silent_->wasAsked();
}

void KerberosRealm::administer(const std::string& query) {
    runProgram("/usr/sbin/kadmin.local", {"-r", name, "-q", query});
}

std::string KerberosRealm::wrongKeyTable() {
    const std::string wrong = file("wrong.keytab");
    // The same key version, so that it is taken for the right one.
    runProgram("/usr/bin/ktutil", {},
               std::string("addent -password -p ") + service + "@" + name +
                   " -k 2 -e aes256-cts-hmac-sha1-96\nguess\nwkt " + wrong + "\nquit\n");
    return wrong;
}

void KerberosRealm::addUser(const std::string& userName) {
    administer(std::string("addprinc -pw \"") + password + "\" " + userName);
}

void KerberosRealm::getTicket(const std::string& userName) {
    runProgram("/usr/bin/kinit", {"-l", "10h", userName}, std::string(password) + "\n");
}

void KerberosRealm::getExpiredTicket() {
    using namespace std::chrono_literals;
    runProgram("/usr/bin/kinit", {"-l", "1s", user}, std::string(password) + "\n");
    const auto deadline = std::chrono::steady_clock::now() + 20s;
    while (ChildProcess("/usr/bin/klist", {"-s"}).status() == 0) {
        if (std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error("the ticket doesn't expire");
        std::this_thread::sleep_for(100ms);
    }
}

void KerberosRealm::restartKdcAhead() {
    const std::string fakeTime = "/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1";
    if (!fs::exists(fakeTime))
        throw std::runtime_error("no libfaketime");
    stopKdc();
    setVariable("LD_PRELOAD", fakeTime);
    setVariable("FAKETIME", "+1h");
    startKdc();
    restoreVariable("LD_PRELOAD");
    restoreVariable("FAKETIME");
}

void KerberosRealm::getServiceTicket() {
    runProgram("/usr/bin/kvno", {service});
}

void KerberosRealm::destroyTicket() {
    fs::remove(file("tickets"));
}

void KerberosRealm::writeClientKeys() {
    administer(std::string("ktadd -norandkey -k ") + file("client.keytab") + " " + user);
}

} // namespace support
