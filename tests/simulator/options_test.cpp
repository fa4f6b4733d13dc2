// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "simulator/options.h"

using simulator::BadOption;
using simulator::parseCommandLine;
using simulator::Scenario;
using Action = simulator::CommandLine::Action;

namespace {

std::string errorOf(const std::vector<std::string>& arguments) {
    try {
        parseCommandLine(arguments);
    } catch (const BadOption& bad) {
        return bad.what();
    }
    return "none";
}

TEST(Options, DefaultsSuitARunWithoutAny) {
    const auto line = parseCommandLine({});
    EXPECT_EQ(line.action, Action::Run);
    EXPECT_EQ(line.options.port, 4411);
    EXPECT_EQ(line.options.scenario, Scenario::Default);
    EXPECT_TRUE(line.options.guest);
    EXPECT_FALSE(line.options.plain);
    EXPECT_EQ(line.options.speed, 1.0);
    EXPECT_TRUE(line.options.domains.empty());
    EXPECT_FALSE(line.options.recordCalls);
}

TEST(Options, TakesEachOne) {
    const auto line =
        parseCommandLine({"--port", "0", "--scenario", "first-run", "--user", "anna", "--password",
                          "s3cret", "--domain", "A", "--domain", "B", "--no-guest", "--speed",
                          "2.5", "--log", "/tmp/x", "--plain"});
    EXPECT_EQ(line.options.port, 0);
    EXPECT_EQ(line.options.scenario, Scenario::FirstRun);
    EXPECT_EQ(line.options.user, "anna");
    EXPECT_EQ(line.options.password, "s3cret");
    EXPECT_EQ(line.options.domains, (std::vector<std::string>{"A", "B"}));
    EXPECT_FALSE(line.options.guest);
    EXPECT_EQ(line.options.speed, 2.5);
    EXPECT_EQ(line.options.logFile, "/tmp/x");
    EXPECT_TRUE(line.options.plain);
}

TEST(Options, TakesWhatIsInPlaceOfTheScenario) {
    const auto options =
        parseCommandLine({"--client-type", "14", "--os-type", "1", "--without-tool", "8",
                          "--without-tool", "9", "--two-factor", "007"})
            .options;
    EXPECT_EQ(options.clientType, 14);
    EXPECT_EQ(options.osType, 1);
    EXPECT_EQ(options.disabledTools, (std::vector<std::int32_t>{8, 9}));
    EXPECT_EQ(options.twoFactorCode, "007");
    EXPECT_FALSE(parseCommandLine({}).options.twoFactorCode);
}

TEST(Options, KnowsEachScenario) {
    const std::vector<std::pair<std::string, Scenario>> scenarios{
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
        {"many-folders", Scenario::ManyFolders}};
    EXPECT_EQ(simulator::allScenarios().size(), scenarios.size());
    for (const auto& [name, scenario] : scenarios)
        EXPECT_EQ(parseCommandLine({"--scenario", name}).options.scenario, scenario) << name;
}

TEST(Options, AsksForHelpAndVersion) {
    EXPECT_EQ(parseCommandLine({"--help"}).action, Action::Help);
    EXPECT_EQ(parseCommandLine({"--version"}).action, Action::Version);
}

TEST(Options, HelpReportsEachOne) {
    for (const char* option : {"--port", "--scenario", "--user", "--password", "--domain",
                               "--no-guest", "--speed", "--log", "--plain", "--help", "--version",
                               "--client-type", "--os-type", "--without-tool", "--two-factor"})
        EXPECT_NE(simulator::helpText().find(option), std::string_view::npos) << option;
}

TEST(Options, HelpReportsEachScenario) {
    for (const auto& [name, scenario] : simulator::allScenarios())
        EXPECT_NE(simulator::helpText().find(name), std::string_view::npos) << name;
}

TEST(Options, SaysWhatIsWrong) {
    EXPECT_EQ(errorOf({"--prot"}), "unknown option '--prot'");
    EXPECT_EQ(errorOf({"4411"}), "unknown option '4411'");
    EXPECT_EQ(errorOf({"--port"}), "--port needs a value");
    EXPECT_EQ(errorOf({"--port", "65536"}), "'65536' is not a valid value for --port");
    EXPECT_EQ(errorOf({"--port", "-1"}), "'-1' is not a valid value for --port");
    EXPECT_EQ(errorOf({"--port", "44x"}), "'44x' is not a valid value for --port");
    EXPECT_EQ(errorOf({"--speed", "0"}), "'0' is not a valid value for --speed");
    EXPECT_EQ(errorOf({"--speed", "nan"}), "'nan' is not a valid value for --speed");
    EXPECT_EQ(errorOf({"--os-type", "3"}), "'3' is not a valid value for --os-type");
    EXPECT_EQ(errorOf({"--client-type", "x"}), "'x' is not a valid value for --client-type");
    EXPECT_EQ(errorOf({"--scenario", "huge"}), "unknown scenario 'huge'");
}

} // namespace
