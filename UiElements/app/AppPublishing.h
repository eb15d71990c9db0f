// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What the outer application says about itself as a published product.
namespace AppPublishing {

/// The texts of an "about" page. The library only stores them.
struct OxaPublishingInfo
{
    QString organizationName;
    QString organizationDomain;
    QString productName;
    QString productVersion;
    QString buildNumber;
    QString copyrightNotice;
    QString supportAddress;
    QString privacyAddress;
    QString termsAddress;
};

} // namespace AppPublishing
