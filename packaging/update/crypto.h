#pragma once

#include "format.h"

#include <memory>
#include <string>

struct evp_md_ctx_st;

/// Checksums and signatures, by the system's crypto library.
namespace update {

/// SHA-256 of what is added, piece by piece.
class Sha256
{
public:
    Sha256();
    ~Sha256();
    Sha256(const Sha256 &) = delete;
    Sha256 &operator=(const Sha256 &) = delete;

    void add(const void *data, std::size_t size);
    /// To be called once, at the end. False: the library failed.
    bool finish(Digest *digest);

private:
    evp_md_ctx_st *m_context;
    bool m_good;
};

/// Whether `signature` is the Ed25519 signature of `message` by the key whose public half is `publicKey` (PEM).
/// `*keyRead` tells whether the key itself could be read.
bool isSignedBy(const std::string &publicKey, const std::string &message, const std::string &signature, bool *keyRead);

/// The signature with a private key (PEM); empty when the key is no Ed25519 key.
std::string sign(const std::string &privateKey, const std::string &message);

/// A new pair of keys as PEM. False: the library failed.
bool makeKeys(std::string *privateKey, std::string *publicKey);

} // namespace update
