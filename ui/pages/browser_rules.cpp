#include "ui/pages/browser_rules.hpp"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace lexigrove
{

namespace
{

bool isOnThisMachine(const QUrl& url)
{
    const QString host = url.host();
    return host == "localhost" || host == "127.0.0.1" || host == "::1";
}

/// The folder with links resolved and a trailing separator, so that no path leads out of it unnoticed.
QString realFolder(const QString& path)
{
    const QString folder = QFileInfo(QFileInfo(path).path()).canonicalFilePath();
    return folder.endsWith('/') ? folder : folder + '/';
}

} // namespace

BrowserRules BrowserRules::forLocalPage(const QString& path)
{
    BrowserRules rules;
    rules.localPage_ = QDir::cleanPath(path);
    return rules;
}

BrowserRules BrowserRules::forServices(const QString& address)
{
    BrowserRules rules;
    rules.isServiceLocal_ = isOnThisMachine(QUrl(address));
    return rules;
}

bool BrowserRules::allows(const BrowserRequest& request) const
{
    const QString scheme = request.url.scheme();
    if (scheme == "data") // carries its own content
        return !request.isPage;
    if (!localPage_.isEmpty())
        return scheme == "file" && allowsFile(request);
    if (scheme == "https")
        return true;
    const bool askedFromHere = request.isPage ? isServiceLocal_ : isOnThisMachine(request.page);
    return scheme == "http" && isOnThisMachine(request.url) && askedFromHere;
}

bool BrowserRules::allowsFile(const BrowserRequest& request) const
{
    const QString path = QDir::cleanPath(request.url.toLocalFile());
    if (request.isPage)
        return path == localPage_;
    const QFileInfo file(path);
    static const QStringList pictures{"png", "svg", "jpg", "jpeg", "gif", "webp"};
    return request.isImage && pictures.contains(file.suffix().toLower()) &&
           file.canonicalFilePath().startsWith(realFolder(localPage_));
}

QString engineOptions(const QStringList& services)
{
    QStringList refused{"localhost", "*.localhost", "*.local", "[::*",  "[fc*",      "[fd*",
                        "[fe80:*",   "0.*",         "10.*",    "127.*", "169.254.*", "192.168.*"};
    for (int net = 16; net <= 31; ++net)
        refused += QString("172.%1.*").arg(net);
    QStringList rules;
    for (const QString& pattern : refused)
        rules += "MAP " + pattern + " ~NOTFOUND";
    for (const QString& service : services)
        rules += "EXCLUDE " + QUrl(service).host();
    const char* const calls = "ip-handling-policy=disable_non_proxied_udp";
    return QString("--host-resolver-rules=\"%1\" --force-webrtc-%2 --webrtc-%2 --js-flags=--max-old-space-size=256")
        .arg(rules.join(','), calls);
}

} // namespace lexigrove
