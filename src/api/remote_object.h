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

/// The near end of an object that lives on the agent, known by its URL and by nothing else.
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
/// The methods are one line each, which needs "api/remote_call.h":
///
///     std::int32_t BackupSet::getID() {
///         return call<std::int32_t>("getID");
///     }
///     void BackupSet::setActive(bool value) {
///         call<void>("setActive", value);
///     }
///
/// `family` is its name on the wire where it is an argument; a class without one is never passed.
/// A class that is reached by a cast derives from the family's root and adds its own name as
/// `className`.
///
/// Every remote method blocks for one round trip and raises
/// - `invoke_exception` if the transport fails, or with the message of a fault that came back;
/// - `serialize_exception` if the reply is malformed.
/// The proxy stays usable then. Several threads may use one proxy at once as soon as it has a
/// dispatcher; proxies that come out of a reply have one.
class RemoteObject {
public:
    /// `autoRelease`: the agent is to be told when the last proxy of the object goes.
    /// `traceLevel`, `traceFile`: for the dispatcher that the object creates if it is given none.
    RemoteObject(std::string url, bool autoRelease, std::uint32_t traceLevel,
                 std::string traceFile);
    RemoteObject(boost::shared_ptr<ICallDispatcher> dispatcher, std::string url, bool autoRelease,
                 std::uint32_t traceLevel, std::string traceFile);
    RemoteObject(const RemoteObject&) = delete;
    RemoteObject& operator=(const RemoteObject&) = delete;
    ~RemoteObject();

    const std::string& url() const { return url_; }

    /// Sends a finished call and puts the whole reply into `response`. Creates a dispatcher first
    /// if there is none, which is not guarded against other threads.
    void sendCall(const std::string& request, std::string& response);

    boost::shared_ptr<ICallDispatcher> getDispatcher() const { return dispatcher_; }
    void setDispatcher(const boost::shared_ptr<ICallDispatcher>& dispatcher);
    boost::shared_ptr<CAutoReleaser> getAutoReleaser() const { return autoReleaser_; }

    /// The names of the classes that the object is of, without any prefix.
    std::vector<std::string> types();

    /// Tells the agent that the object isn't needed any more. Does nothing once that succeeded.
    void Release();

protected:
    /// One remote method: sizes and writes the call, sends it, reads the reply, and binds the
    /// proxies that came with it to this object's dispatcher.
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

/// A proxy in an argument or a result, null for a null reference. What class it has is said by the
/// method that takes or gives it, whatever the wire says beside its URL.
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
