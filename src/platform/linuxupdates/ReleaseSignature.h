#pragma once

#include <QFileDevice>
#include <string>

namespace kinesta {

/// Whether `signature` (64 bytes) is the Ed25519 signature over the whole of `file` by the owner of `publicKey` (32
/// bytes). Any thread, one at a time for a file.
bool isSignedBy(const std::string& publicKey, QFileDevice& file, const std::string& signature);

}  // namespace kinesta
