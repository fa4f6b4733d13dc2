// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include "hessian/kinds.h"

namespace hessiancln {

class CAutoReleaser;
class ICallDispatcher;

/// The local end of an object that lives on the agent, identified only by its URL.
///
/// A proxy class derives from it, adds one method for each remote method, and no data:
///
///     class BackupSet : public RemoteObject {
///     public:
///         static constexpr std::string_view family = "BackupSet";
///         using RemoteObject::RemoteObject;
///
///         std::int32_t getID();
///         void setActive(bool value);
///     };
///
/// The methods are one line each and need "api/remote_call.h":
///
///     std::int32_t BackupSet::getID() {
///         return call<std::int32_t>("getID");
///     }
///     void BackupSet::setActive(bool value) {
///         call<void>("setActive", value);
///     }
///
/// `family` is its name on the wire as an argument; a class without it is never passed. A class
/// reached by a cast derives from the root of the family and adds its own name as `className`.
///
/// Every remote method blocks for one round trip and throws
/// - `invoke_exception` if the transport fails, or with the message of a returned fault;
/// - `serialize_exception` if the reply is malformed.
/// The proxy stays usable after an exception. Several threads may share a proxy as soon as it has a
/// dispatcher; proxies from a reply always have one.
class RemoteObject {
public:
    /// `autoRelease`: release the object on the agent with its last proxy.
    /// `traceLevel`, `traceFile`: for the dispatcher that the object creates if none is given.
    RemoteObject(std::string url, bool autoRelease, std::uint32_t traceLevel,
                 std::string traceFile);
    RemoteObject(boost::shared_ptr<ICallDispatcher> dispatcher, std::string url, bool autoRelease,
                 std::uint32_t traceLevel, std::string traceFile);
    RemoteObject(const RemoteObject&) = delete;
    RemoteObject& operator=(const RemoteObject&) = delete;
    ~RemoteObject();

    const std::string& url() const { return url_; }

    /// Sends a complete call and stores the whole reply in `response`. Creates a dispatcher first
    /// if the object has none yet, which isn't thread-safe.
    void sendCall(const std::string& request, std::string& response);

    boost::shared_ptr<ICallDispatcher> getDispatcher() const { return dispatcher_; }
    void setDispatcher(const boost::shared_ptr<ICallDispatcher>& dispatcher);
    boost::shared_ptr<CAutoReleaser> getAutoReleaser() const { return autoReleaser_; }

    /// The names of the object's classes, without any prefix.
    std::vector<std::string> types();

    /// Releases the object on the agent. Does nothing once that has succeeded.
    void Release();

protected:
    /// Calls a remote method: sizes and writes the call, sends it, reads the reply, and binds the
    /// proxies in it to this object's dispatcher.
    template <class Result, hessianser::Value... Arguments>
    Result call(std::string_view method, const Arguments&... arguments);

private:
    template <class Derived, class Base>
    friend boost::shared_ptr<Derived> checkedCast(const boost::shared_ptr<Base>& source);

    void requireType(std::string_view from, std::string_view to);
    void shareObjectOf(const RemoteObject& source);
    std::string sendFinished(std::string& request);

    std::string url_;
    bool released_ = false;
    std::uint32_t traceLevel_;
    std::string traceFile_;
    boost::shared_ptr<CAutoReleaser> autoReleaser_;
    boost::shared_ptr<ICallDispatcher> dispatcher_;
};

template <class T>
concept ProxyClass = std::derived_from<T, RemoteObject>;

} // namespace hessiancln

/// A proxy in an argument or a result; null for a null reference. Its class is determined by the
/// method that takes or returns it, regardless of the type name on the wire.
template <class P>
requires hessiancln::ProxyClass<P>
struct hessianser::RemoteTraits<boost::shared_ptr<P>> {
    static std::string typeName() { return "com.norvel.api." + std::string(P::family); }
    static const std::string* url(const boost::shared_ptr<P>& proxy) {
        return proxy ? &proxy->url() : nullptr;
    }
    static boost::shared_ptr<P> fromUrl(std::string url) {
        return boost::make_shared<P>(std::move(url), true, 0u, std::string());
    }
};
