#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace lexigrove
{

/// A page view's request for a page, or for something on a page.
struct BrowserRequest {
    QUrl url;
    QUrl page;            ///< the requesting page; the page itself if `isPage`
    bool isPage = false;  ///< it fills the view
    bool isImage = false; ///< a picture on the page
};

/// What a page view may open. Everything else is refused.
class BrowserRules
{
public:
    /// The pages of a meaning service: https, and also http on this machine if the service is there.
    static BrowserRules forServices(const QString& address);

    /// One page on the disk (an absolute path) and the pictures in its folder and below; nothing from the network.
    static BrowserRules forLocalPage(const QString& path);

    [[nodiscard]] bool allows(const BrowserRequest& request) const;

    /// Scripts run only on the pages of services.
    [[nodiscard]] bool scripts() const { return localPage_.isEmpty(); }

private:
    [[nodiscard]] bool allowsFile(const BrowserRequest& request) const;

    QString localPage_;
    bool isServiceLocal_ = false; ///< on this machine
};

/// Options for the engine's command line, which hold for all pages. A request that the rules allow may be redirected to
/// another address before they are asked again, so no name is resolved that stands for this machine or its private
/// network, but for those of `services` (addresses, "https://host"). Calls between browsers, which no rule sees, go
/// nowhere, and a page's scripts have 256 MiB.
QString engineOptions(const QStringList& services);

} // namespace lexigrove
