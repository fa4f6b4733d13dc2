// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "simulator/objects/arguments.h"
#include "simulator/objects/session.h"

namespace simulator {

/// The agent's side of a remote object.
///
/// A class derives from it, names itself in its constructor, and registers each method in one line:
///
///     class BackupStartParameters : public Servant {
///     public:
///         static constexpr std::string_view family = "BackupStartParameters";
///
///         explicit BackupStartParameters(std::shared_ptr<Session> session)
///             : Servant(std::move(session)) {
///             implements("BackupStartParameters");
///             on("setPreScanSource", [this](bool value) { preScan_ = value; });
///         }
///     };
///
/// `family` is needed if objects of the class are arguments of others. A subclass derives from its
/// base class and names itself too. A handler's types determine how the call is decoded; the
/// handler throws `Refusal` or `Violation`, whose text becomes the fault. `types` exists for every
/// class, and `Release` is handled by the owner of the objects.
class Servant : public std::enable_shared_from_this<Servant> {
public:
    explicit Servant(std::shared_ptr<Session> session)
        : session_(std::move(session)) {}
    Servant(const Servant&) = delete;
    Servant& operator=(const Servant&) = delete;
    virtual ~Servant() = default;

    /// A fully decoded call, ready to run.
    struct Prepared {
        std::string className; ///< the class that declares the method
        std::string arguments; ///< human-readable
        std::function<void(std::string& reply)> run;
    };

    /// Decodes the arguments up to the call's end. Throws `Violation` or `serialize_exception`.
    Prepared prepare(std::string_view method, hessianser::Cursor& in, References& references);

    /// The object's name in logs when it is an argument.
    virtual std::string label() const { return className(); }

    /// The base class, which is the return type of a client's method.
    const std::string& className() const { return types_.front(); }

    const std::shared_ptr<Session>& session() const { return session_; }

protected:
    /// Declares a class, from the base to the most derived; later `on` calls belong to it.
    void implements(std::string className) { types_.push_back(std::move(className)); }

    template <class Handler>
    void on(std::string method, Handler handler) {
        Method entry{types_.back(), decoder(std::move(handler), &Handler::operator())};
        methods_.insert_or_assign(std::move(method), std::move(entry));
    }

    /// For results: this object as its own class.
    template <class Self>
    static std::shared_ptr<Self> share(Self& self) {
        return std::static_pointer_cast<Self>(self.shared_from_this());
    }

private:
    struct Decoded {
        std::string arguments;
        std::function<void(std::string&)> run;
    };
    using Decoder = std::function<Decoded(hessianser::Cursor&, References&)>;

    struct Method {
        std::string className;
        Decoder decode;
    };

    template <class Handler, class Result, class... Argument>
    static Decoder decoder(Handler handler, Result (Handler::*)(Argument...) const) {
        return [handler](hessianser::Cursor& in, References& references) {
            auto values = std::make_shared<std::tuple<std::remove_cvref_t<Argument>...>>();
            const std::string text = readAll(in, references, *values);
            return Decoded{text, [handler, values, &references](std::string& reply) {
                               if constexpr (std::is_void_v<Result>)
                                   std::apply(handler, *values);
                               else
                                   writeResult<Result>(std::apply(handler, *values), references,
                                                       reply);
                           }};
        };
    }

    template <class... T>
    static std::string readAll(hessianser::Cursor& in, References& references,
                               std::tuple<T...>& values) {
        std::string text;
        std::size_t number = 0;
        const auto read = [&]<class V>(V& value) {
            expectArgument(in, ++number, sizeof...(T));
            value = readArgument<V>(in, references);
            text += (number == 1 ? "" : ", ") + describe(value);
        };
        std::apply([&](T&... value) { (read(value), ...); }, values);
        expectEnd(in, sizeof...(T));
        return text;
    }

    static void expectArgument(const hessianser::Cursor& in, std::size_t number, std::size_t of);
    static void expectEnd(hessianser::Cursor& in, std::size_t count);

    std::shared_ptr<Session> session_;
    std::vector<std::string> types_;
    std::map<std::string, Method, std::less<>> methods_;
};

} // namespace simulator
