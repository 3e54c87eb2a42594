#pragma once

#include <QString>
#include <QUrl>

namespace lexigrove
{

/// What a page view asks for: a page, or something that a page is made of.
struct BrowserRequest {
    QUrl url;
    QUrl page;            ///< the page that asks; the page itself where `isPage`
    bool isPage = false;  ///< what is to fill the view
    bool isImage = false; ///< a picture on the page
};

/// What a page view may open. Everything else is refused, whoever asks for it.
class BrowserRules
{
public:
    /// The pages of a meaning service: https, and http on the machine itself where the service is there.
    static BrowserRules forServices(const QString& address);

    /// One page on the disk (an absolute path) and the pictures in its folder and below; nothing of the network.
    static BrowserRules forLocalPage(const QString& path);

    [[nodiscard]] bool allows(const BrowserRequest& request) const;

    /// Scripts run on the pages of services only.
    [[nodiscard]] bool scripts() const { return localPage_.isEmpty(); }

private:
    [[nodiscard]] bool allowsFile(const BrowserRequest& request) const;

    QString localPage_;
    bool isServiceHere_ = false; ///< on the machine itself
};

} // namespace lexigrove
