// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/options.h"

#include <charconv>
#include <cmath>

namespace simulator {
namespace {

constexpr std::uint16_t defaultPort = 4411;
constexpr double fastest = 1'000'000;

template <class Number>
Number number(const std::string& option, const std::string& text, Number least, Number most) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, value);
    if (parsed.ec != std::errc() || parsed.ptr != end || !(value >= least && value <= most))
        throw BadOption("'" + text + "' is not a valid value for " + option);
    return value;
}

/// Iterates over the arguments.
class Arguments {
public:
    explicit Arguments(const std::vector<std::string>& all)
        : all_(all) {}

    bool empty() const { return next_ == all_.size(); }
    const std::string& next() { return all_[next_++]; }
    const std::string& valueOf(const std::string& option) {
        if (empty())
            throw BadOption(option + " needs a value");
        return next();
    }

private:
    const std::vector<std::string>& all_;
    std::size_t next_ = 0;
};

Scenario scenario(const std::string& name) {
    const std::optional<Scenario> found = scenarioNamed(name);
    if (!found)
        throw BadOption("unknown scenario '" + name + "'");
    return *found;
}

/// Returns false if there is no such option.
bool applyToWorld(Options& options, const std::string& option, const std::string& value) {
    constexpr std::int32_t greatest = 99;
    if (option == "--client-type")
        options.clientType = number(option, value, 0, greatest);
    else if (option == "--os-type")
        options.osType = number(option, value, 0, 2);
    else if (option == "--without-tool")
        options.disabledTools.push_back(number(option, value, 0, greatest));
    else if (option == "--two-factor")
        options.twoFactorCode = value;
    else
        return false;
    return true;
}

void applyValue(Options& options, const std::string& option, const std::string& value) {
    if (option == "--port")
        options.port = number<std::uint16_t>(option, value, 0, 65535);
    else if (option == "--scenario")
        options.scenario = scenario(value);
    else if (option == "--user")
        options.user = value;
    else if (option == "--password")
        options.password = value;
    else if (option == "--domain")
        options.domains.push_back(value);
    else if (option == "--speed")
        options.speed = number<double>(option, value, 1 / fastest, fastest);
    else if (option == "--log")
        options.logFile = value;
    else if (option == "--accept-logon")
        options.acceptLogon = value;
    else if (!applyToWorld(options, option, value))
        throw BadOption("unknown option '" + option + "'");
}

bool takesValue(std::string_view option) {
    for (const std::string_view known :
         {"--port", "--scenario", "--user", "--password", "--domain", "--accept-logon", "--speed",
          "--log", "--client-type", "--os-type", "--without-tool", "--two-factor"})
        if (option == known)
            return true;
    return false;
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
    CommandLine result;
    result.options.port = defaultPort;
    result.options.recordCalls = false;
    Arguments rest(arguments);
    while (!rest.empty()) {
        const std::string option = rest.next();
        if (option == "--help")
            result.action = CommandLine::Action::Help;
        else if (option == "--version")
            result.action = CommandLine::Action::Version;
        else if (option == "--plain")
            result.options.plain = true;
        else if (option == "--no-guest")
            result.options.guest = false;
        else if (takesValue(option))
            applyValue(result.options, option, rest.valueOf(option));
        else
            throw BadOption("unknown option '" + option + "'");
    }
    return result;
}

std::string_view helpText() {
    return R"(Usage: tarn-agent-simulator [OPTION]...

A simulated backup agent for testing and demonstrating the client. It listens
on 127.0.0.1 only.

  --port PORT          listen on this port; 0 picks a free one (default 4411)
  --scenario NAME      data of the agent: default, empty, central, notebook,
                       first-run, unix or large; for restoring and deleting,
                       generations (files of two years, some since removed),
                       groups (entries that can't be selected themselves),
                       shares (with colliding names), failing (with unreadable
                       folders), many-files (100,000 in one folder), deep (60
                       nested folders) or storages (a backup set for each);
                       for problems to solve, overdue, failed, stalled (a
                       backup that makes no progress), overlapping (schedules
                       of all kinds) or many-folders (100,000 files in 1,000
                       folders)
  --client-type NUMBER
                       kind of agent; overrides the scenario: 8 and 9 are
                       mobile, 14 is a notebook
  --os-type NUMBER     operating system; overrides the scenario: 0 is
                       Windows, 1 and 2 are Unix
  --without-tool NUMBER
                       disable a tool; can be repeated. Without tool 8,
                       backup sets can't use local storage
  --two-factor CODE    enable two-factor authentication with this code
  --user NAME          user who can log in (default demo)
  --password TEXT      password of the user (default demo)
  --domain NAME        domain offered for login; can be repeated
  --no-guest           refuse logins with an empty user name
  --accept-logon KEYTAB
                       accept integrated logons by Kerberos with the keys in
                       this file; '' uses the key table of the environment
  --speed FACTOR       run activities this much faster (default 1)
  --log FILE           write a line for each call
  --plain              don't use TLS
  --help               show this text
  --version            show the version
)";
}

} // namespace simulator
