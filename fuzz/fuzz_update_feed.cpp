// Any bytes as an update feed: each release that is offered must be complete and downloadable.

#include <cstddef>
#include <cstdint>

#include "actions/OpenTarget.h"
#include "platform/linuxupdates/UpdateFeed.h"
#include "require.h"

using namespace kinesta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto releases = readUpdateFeed(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!releases)
        return 0;
    for (const SoftwareRelease& release : *releases) {
        require(isVersion(release.version) && isSecureWebAddress(release.url));
        require(release.length > 0 && release.signature.size() == 64);
        require(!isOlder(release.version, release.version));
    }
    const RunningSystem running{"1", "linux", "x86_64", "2"};
    if (const SoftwareRelease* newest = newestRelease(*releases, running))
        require(isOlder(running.version, newest->version) && newest->system == "linux");
    return 0;
}
