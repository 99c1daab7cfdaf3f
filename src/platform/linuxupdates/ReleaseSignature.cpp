#include "platform/linuxupdates/ReleaseSignature.h"

#include <sodium.h>

namespace kinesta {
namespace {

const unsigned char* bytes(const std::string& text) { return reinterpret_cast<const unsigned char*>(text.data()); }

}  // namespace

bool isSignedBy(const std::string& publicKey, QFileDevice& file, const std::string& signature) {
    if (sodium_init() < 0 || publicKey.size() != crypto_sign_PUBLICKEYBYTES || signature.size() != crypto_sign_BYTES)
        return false;
    // Ed25519 reads the message twice, so it must be in memory as a whole; a mapping leaves that to the system.
    uchar* content = file.map(0, file.size());
    if (content == nullptr)
        return false;
    const bool isGenuine =
        crypto_sign_verify_detached(bytes(signature), content, static_cast<unsigned long long>(file.size()),
                                    bytes(publicKey)) == 0;
    file.unmap(content);
    return isGenuine;
}

}  // namespace kinesta
