#pragma once

#include <QMetaType>
#include <QString>

/// Who published the running program, for about boxes, links and diagnostics. All texts are the host's and may be
/// empty; the library shows them and draws no conclusion from them.
struct WPublishingInfo
{
    QString productName;
    QString publisher;
    QString version;
    QString channel; ///< for example "stable" or "beta"
    QString supportUrl;

    bool operator==(const WPublishingInfo &o) const
    {
        return productName == o.productName && publisher == o.publisher && version == o.version && channel == o.channel
            && supportUrl == o.supportUrl;
    }
    bool operator!=(const WPublishingInfo &o) const { return !(*this == o); }
};

Q_DECLARE_METATYPE(WPublishingInfo)
