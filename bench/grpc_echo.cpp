// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "grpc_echo.h"

#include <stdexcept>

#include <grpcpp/grpcpp.h>
#include <openssl/bio.h>
#include <openssl/pem.h>
#include <openssl/ssl.h>

#include "echo.grpc.pb.h"
#include "simulator/wire/certificate.h"

namespace bench {
namespace {

using Memory = std::unique_ptr<BIO, decltype(&BIO_free)>;

template <class Write>
std::string pem(Write write) {
    const Memory memory(BIO_new(BIO_s_mem()), &BIO_free);
    char* text = nullptr;
    if (!memory || write(memory.get()) != 1)
        throw std::runtime_error("The certificate can't be written");
    const long size = BIO_get_mem_data(memory.get(), &text);
    return {text, static_cast<std::size_t>(size)};
}

class EchoService final : public Echo::Service {
    grpc::Status Call(grpc::ServerContext*, const Payload* request, Payload* reply) override {
        reply->set_content(request->content());
        return grpc::Status::OK;
    }
};

} // namespace

Identity makeIdentity() {
    auto context = simulator::wire::selfSignedContext();
    SSL_CTX* const native = context.native_handle();
    const auto writeKey = [native](BIO* out) {
        return PEM_write_bio_PrivateKey(out, SSL_CTX_get0_privatekey(native), nullptr, nullptr, 0,
                                        nullptr, nullptr);
    };
    const auto writeCertificate = [native](BIO* out) {
        return PEM_write_bio_X509(out, SSL_CTX_get0_certificate(native));
    };
    return {pem(writeKey), pem(writeCertificate)};
}

void serveGrpc(const Identity& identity, const ServerProcess::Listening& listening) {
    grpc::SslServerCredentialsOptions options;
    options.pem_key_cert_pairs.push_back({identity.key, identity.certificate});
    EchoService service;
    int port = 0;
    grpc::ServerBuilder builder;
    builder.AddListeningPort("127.0.0.1:0", grpc::SslServerCredentials(options), &port);
    builder.RegisterService(&service);
    const auto server = builder.BuildAndStart();
    if (!server)
        throw std::runtime_error("gRPC doesn't listen");
    listening(static_cast<std::uint16_t>(port));
    server->Wait();
}

struct GrpcClient::Channel {
    std::unique_ptr<Echo::Stub> stub;
};

GrpcClient::GrpcClient(const Identity& identity, std::uint16_t port)
    : channel_(std::make_unique<Channel>()) {
    grpc::SslCredentialsOptions options;
    options.pem_root_certs = identity.certificate;
    channel_->stub = Echo::NewStub(
        grpc::CreateChannel("127.0.0.1:" + std::to_string(port), grpc::SslCredentials(options)));
}

GrpcClient::~GrpcClient() = default;

std::string GrpcClient::call(const std::string& content) {
    grpc::ClientContext context;
    Payload request;
    Payload reply;
    request.set_content(content);
    const grpc::Status status = channel_->stub->Call(&context, request, &reply);
    if (!status.ok())
        throw std::runtime_error("gRPC: " + status.error_message());
    return std::move(*reply.mutable_content());
}

} // namespace bench
