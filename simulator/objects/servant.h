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

/// The agent's end of a remote object.
///
/// A class derives from it, names itself in its constructor, and has one line for each method:
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
/// `family` is needed where it is an argument of others. A narrower class derives from the wider
/// one, and names itself as well. A handler's types say how the call is decoded; it raises
/// `Refusal` or `Violation`, whose text becomes the fault. `types` is there for every class, and
/// `Release` is the business of who keeps the objects.
class Servant : public std::enable_shared_from_this<Servant> {
public:
    explicit Servant(std::shared_ptr<Session> session)
        : session_(std::move(session)) {}
    Servant(const Servant&) = delete;
    Servant& operator=(const Servant&) = delete;
    virtual ~Servant() = default;

    /// A call that was decoded as a whole, and waits to be run.
    struct Prepared {
        std::string className; ///< the class that has the method
        std::string arguments; ///< as people read them
        std::function<void(std::string& reply)> run;
    };

    /// Decodes the arguments up to the call's end. Raises `Violation` or `serialize_exception`.
    Prepared prepare(std::string_view method, hessianser::Cursor& in, References& references);

    /// How logs name the object where it is an argument.
    virtual std::string label() const { return className(); }

    /// The class of the widest kind, as a client's method returns it.
    const std::string& className() const { return types_.front(); }

    const std::shared_ptr<Session>& session() const { return session_; }

protected:
    /// The methods that follow are those of this class. From the widest class to the narrowest.
    void implements(std::string className) { types_.push_back(std::move(className)); }

    template <class Handler>
    void on(std::string method, Handler handler) {
        Method entry{types_.back(), decoder(std::move(handler), &Handler::operator())};
        methods_.insert_or_assign(std::move(method), std::move(entry));
    }

    /// For results: this object, as its own class.
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
