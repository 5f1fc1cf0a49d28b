#include "crypto.h"

#include <openssl/evp.h>
#include <openssl/pem.h>

namespace update {

namespace {

struct Free
{
    void operator()(BIO *bio) const { BIO_free(bio); }
    void operator()(EVP_PKEY *key) const { EVP_PKEY_free(key); }
    void operator()(EVP_PKEY_CTX *context) const { EVP_PKEY_CTX_free(context); }
    void operator()(EVP_MD_CTX *context) const { EVP_MD_CTX_free(context); }
};
using Bio = std::unique_ptr<BIO, Free>;
using Key = std::unique_ptr<EVP_PKEY, Free>;
using DigestContext = std::unique_ptr<EVP_MD_CTX, Free>;

const unsigned char *bytesOf(const std::string &text)
{
    return reinterpret_cast<const unsigned char *>(text.data());
}

/// Nobody is asked for a pass phrase: an encrypted key cannot be read.
int noPassPhrase(char *, int, int, void *)
{
    return -1;
}

using KeyReader = EVP_PKEY *(*)(BIO *, EVP_PKEY **, pem_password_cb *, void *);

Key readKey(const std::string &pem, KeyReader read)
{
    const Bio bio(BIO_new_mem_buf(pem.data(), int(pem.size())));
    Key key(bio ? read(bio.get(), nullptr, noPassPhrase, nullptr) : nullptr);
    return key && EVP_PKEY_id(key.get()) == EVP_PKEY_ED25519 ? std::move(key) : nullptr;
}

std::string textOf(BIO *bio)
{
    char *data = nullptr;
    const long size = BIO_get_mem_data(bio, &data);
    return size > 0 ? std::string(data, std::size_t(size)) : std::string();
}

} // namespace

Sha256::Sha256() : m_context(EVP_MD_CTX_new())
{
    m_good = m_context && EVP_DigestInit_ex(m_context, EVP_sha256(), nullptr) == 1;
}

Sha256::~Sha256()
{
    EVP_MD_CTX_free(m_context);
}

void Sha256::add(const void *data, std::size_t size)
{
    m_good = m_good && EVP_DigestUpdate(m_context, data, size) == 1;
}

bool Sha256::finish(Digest *digest)
{
    unsigned int size = 0;
    return m_good && EVP_DigestFinal_ex(m_context, digest->data(), &size) == 1 && size == kDigestBytes;
}

bool isSignedBy(const std::string &publicKey, const std::string &message, const std::string &signature, bool *keyRead)
{
    const Key key = readKey(publicKey, PEM_read_bio_PUBKEY);
    *keyRead = key != nullptr;
    const DigestContext context(EVP_MD_CTX_new());
    return key && context && signature.size() == kSignatureBytes
        && EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, key.get()) == 1
        && EVP_DigestVerify(context.get(), bytesOf(signature), signature.size(), bytesOf(message), message.size()) == 1;
}

std::string sign(const std::string &privateKey, const std::string &message)
{
    const Key key = readKey(privateKey, PEM_read_bio_PrivateKey);
    const DigestContext context(EVP_MD_CTX_new());
    unsigned char signature[kSignatureBytes];
    std::size_t size = sizeof(signature);
    if (!key || !context || EVP_DigestSignInit(context.get(), nullptr, nullptr, nullptr, key.get()) != 1
        || EVP_DigestSign(context.get(), signature, &size, bytesOf(message), message.size()) != 1)
        return {};
    return std::string(reinterpret_cast<const char *>(signature), size);
}

bool makeKeys(std::string *privateKey, std::string *publicKey)
{
    const std::unique_ptr<EVP_PKEY_CTX, Free> context(EVP_PKEY_CTX_new_id(EVP_PKEY_ED25519, nullptr));
    EVP_PKEY *made = nullptr;
    if (!context || EVP_PKEY_keygen_init(context.get()) != 1 || EVP_PKEY_keygen(context.get(), &made) != 1)
        return false;
    const Key key(made);
    const Bio secret(BIO_new(BIO_s_mem())), open(BIO_new(BIO_s_mem()));
    if (!secret || !open
        || PEM_write_bio_PKCS8PrivateKey(secret.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) != 1
        || PEM_write_bio_PUBKEY(open.get(), key.get()) != 1)
        return false;
    *privateKey = textOf(secret.get());
    *publicKey = textOf(open.get());
    return true;
}

} // namespace update
