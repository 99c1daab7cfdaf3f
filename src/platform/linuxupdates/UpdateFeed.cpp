#include "platform/linuxupdates/UpdateFeed.h"

#include <QXmlStreamReader>
#include <optional>

#include "actions/OpenTarget.h"
#include "support/Base64.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::size_t kSignatureLength = 64;
/// Of the file of a release. Ours have some megabytes.
constexpr qulonglong kLargestRelease = 1ULL << 30;

std::optional<SoftwareRelease> releaseIn(const QXmlStreamAttributes& attributes) {
    const auto text = [&](const char* name) { return attributes.value(QLatin1String(name)).toString().toStdString(); };
    bool isNumber = false;
    const qulonglong length = attributes.value(QLatin1String("length")).toULongLong(&isNumber);
    const auto signature = fromBase64(text("signature"));
    SoftwareRelease release{.version = text("version"),
                            .system = text("system"),
                            .architecture = text("architecture"),
                            .minimumSystem = text("minimumSystem"),
                            .url = text("url"),
                            .length = length,
                            .signature = signature.value_or("")};
    if (!isVersion(release.version) || !(release.minimumSystem.empty() || isVersion(release.minimumSystem)) ||
        !isNumber || length == 0 || length > kLargestRelease || !isSecureWebAddress(release.url) ||
        release.signature.size() != kSignatureLength)
        return std::nullopt;
    return release;
}

}  // namespace

Result<std::vector<SoftwareRelease>> readUpdateFeed(const QByteArray& text) {
    QXmlStreamReader reader(text);
    std::vector<SoftwareRelease> releases;
    bool isFeed = false;
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
            case QXmlStreamReader::DTD:
                return Error{translated("it declares entities or a document type")};
            case QXmlStreamReader::StartElement:
                ++depth;
                isFeed = isFeed || (depth == 1 && reader.name() == QLatin1String("feed"));
                if (!isFeed)
                    return Error{translated("it is not an update feed")};
                if (depth == 2 && reader.name() == QLatin1String("release"))
                    if (auto release = releaseIn(reader.attributes()))
                        releases.push_back(*std::move(release));
                break;
            case QXmlStreamReader::EndElement:
                --depth;
                break;
            default:
                break;
        }
    }
    if (reader.hasError())
        return Error{
            translated("line %1: %2", {std::to_string(reader.lineNumber()), reader.errorString().toStdString()})};
    return releases;
}

}  // namespace kinesta
