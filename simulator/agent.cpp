// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/agent.h"

#include <algorithm>
#include <ctime>
#include <stdexcept>
#include <utility>

#include "simulator/call_head.h"
#include "simulator/logon/accept_logons.h"
#include "simulator/remote/entry_point.h"

namespace simulator {
namespace {

constexpr std::string_view entryPath = "/api";

// Limits memory in a program that runs for weeks.
constexpr std::size_t mostViolations = 10'000;

/// The URL without the entry point's path; empty if it isn't the URL of the entry point.
std::string entryBase(const std::string& url) {
    const std::size_t authority = url.find("://");
    if (authority == std::string::npos || !url.ends_with(entryPath))
        return {};
    const std::size_t path = url.find('/', authority + 3);
    return path == url.size() - entryPath.size() ? url.substr(0, path) : std::string();
}

std::string timeText(Milliseconds time) {
    const std::time_t whole = seconds(time);
    std::tm parts{};
    gmtime_r(&whole, &parts);
    char text[32];
    const std::size_t size = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return {text, size};
}

/// Makes a text printable on one terminal line, whatever a client sent.
std::string asLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char byte) { return byte < ' ' || byte == 0x7F; },
        '?');
    return text;
}

Options withAcceptor(Options options) {
    if (options.acceptLogon)
        options.integratedLogon = acceptLogons(*options.acceptLogon);
    return options;
}

void furnish(World& world, const Options& options) {
    world.clientType = options.clientType.value_or(world.clientType);
    for (const std::int32_t tool : options.disabledTools)
        world.tools.erase(tool);
    if (!options.twoFactorCode)
        return;
    world.twoFactor = true;
    world.twoFactorCode = *options.twoFactorCode;
}

} // namespace

/// A call in progress.
struct Agent::Step {
    const wire::CallMessage& message;
    hessianser::Cursor in;
    Call call;
    std::string outcome = "ok";
};

Agent::Agent(Options options)
    : options_(withAcceptor(std::move(options)))
    , world_(options_.clock, options_.speed, options_.seed) {
    populate(world_, options_.scenario, options_.osType);
    furnish(world_, options_);
    if (options_.logFile.empty())
        return;
    log_.open(options_.logFile, std::ios::app);
    if (!log_)
        throw std::runtime_error("the log file '" + options_.logFile + "' can't be written");
}

bool Agent::knowsObject(const std::string& url) {
    const std::lock_guard guard(mutex_);
    return !entryBase(url).empty() || objects_.wasHandedOut(url);
}

void Agent::reportViolation(const std::string& text) {
    const std::lock_guard guard(mutex_);
    violate(text);
}

wire::Answer Agent::answer(const wire::CallMessage& message) {
    const std::lock_guard guard(mutex_);
    world_.advance();
    Step step{message, hessianser::Cursor(message.bytes), {"?", "?", ""}};
    wire::Answer answer;
    try {
        answer = run(step);
    } catch (const Refusal& refusal) {
        answer = refuse(step, refusal.what(), false);
    } catch (const std::exception& error) {
        answer = refuse(step, error.what(), true);
    }
    const char* const channel = message.channel == wire::Channel::Http ? "http   " : "stream ";
    writeLine(channel + step.call.text() + " " + step.outcome);
    return answer;
}

wire::Answer Agent::run(Step& step) {
    step.call.method = readCallHead(step.in);
    const auto servant = find(step.message, step.call.method);
    step.call.className = servant->className();
    Servant::Prepared prepared = step.call.method == "Release" && servant->session()
                                     ? prepareRelease(step)
                                     : servant->prepare(step.call.method, step.in, objects_);
    step.call.className = prepared.className;
    step.call.arguments = prepared.arguments;
    const bool ended = servant->session() && servant->session()->ended;
    if (ended && step.call.method != "Release")
        throw Violation("the session has ended");

    objects_.watch();
    const auto injection =
        injections_.take(step.call.className, step.call.method, step.message.channel);
    record(step);
    if (injection) {
        if (const auto instead = answerInstead(*injection)) {
            step.outcome = "replaced";
            return *instead;
        }
    }
    wire::Answer answer;
    answer.message.assign("r\x01\0", 3);
    try {
        prepared.run(answer.message);
        hessianser::writeEnd(answer.message);
    } catch (const Refusal& refusal) {
        step.outcome = std::string("fault: ") + refusal.what();
        answer.message = faultReply({refusal.what(), "Refused"});
    }
    if (injection) {
        spoil(answer, *injection);
        step.outcome += ", altered";
        if (losesReferences(*injection))
            objects_.loseWatched();
    }
    return answer;
}

std::shared_ptr<Servant> Agent::find(const wire::CallMessage& call, const std::string& method) {
    if (std::string base = entryBase(call.url); !base.empty())
        return std::make_shared<EntryPoint>(world_, options_, objects_, std::move(base));
    auto servant = objects_.resolve(call.url);
    if (call.channel == wire::Channel::Http && method != "Release")
        throw Violation("an object of a session is called over HTTP");
    return servant;
}

Servant::Prepared Agent::prepareRelease(Step& step) {
    if (step.in.remaining != 1 || !step.in.at('z'))
        throw Violation("Release has arguments");
    return {step.call.className, "",
            [this, url = step.message.url](std::string&) { objects_.release(url); }};
}

wire::Answer Agent::refuse(Step& step, const std::string& text, bool violation) {
    if (violation)
        violate(step.call.text() + ": " + text);
    step.outcome = "fault: " + text;
    wire::Answer answer;
    if (violation && step.message.channel == wire::Channel::Http &&
        entryBase(step.message.url).empty())
        answer.status = wire::HttpStatus{403, "Forbidden"};
    answer.message = faultReply({text, violation ? "Violation" : "Refused"});
    return answer;
}

void Agent::record(const Step& step) {
    if (options_.recordCalls)
        calls_.push_back(step.call);
    called_.notify_all();
}

void Agent::violate(const std::string& text) {
    if (violations_.size() < mostViolations)
        violations_.push_back(text);
    writeLine("violation: " + text);
}

void Agent::writeLine(const std::string& text) {
    if (log_.is_open())
        log_ << timeText(world_.now()) << ' ' << asLine(text) << std::endl;
}

} // namespace simulator
