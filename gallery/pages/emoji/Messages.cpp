// SPDX-License-Identifier: Apache-2.0
#include "Messages.h"

const std::vector<Message> &messages()
{
    static const std::vector<Message> all = {
        { QStringLiteral("Ada \U0001F469\u200D\U0001F680"),
          QStringLiteral("09:12"),
          QStringLiteral("The release is out \U0001F680\U0001F389 Thank you all, this was a long "
                         "way and every single report helped."),
          { { QStringLiteral("\U0001F44D"), 7 },
            { QStringLiteral("\U0001F389"), 4 },
            { QStringLiteral("\u2764\uFE0F"), 2 } } },
        { QStringLiteral("Benno \U0001F1EB\U0001F1EE"),
          QStringLiteral("09:14"),
          QStringLiteral("\u2705 notes\n\u2705 pictures\n\U0001F4C5 talk on Thursday"),
          { { QStringLiteral("\U0001F44D\U0001F3FD"), 3 } } },
        { QStringLiteral("Fatou \U0001F44B\U0001F3FD"),
          QStringLiteral("09:20"),
          QStringLiteral("<b>Room #7</b> & coffee \u2615 at ten?"),
          { { QStringLiteral("\u2615"), 5 }, { QStringLiteral("\U0001F602"), 1 } } },
        { QStringLiteral("نور ⭐"),
          QStringLiteral("09:31"),
          QStringLiteral("شكرًا للجميع \U0001F60D عمل رائع \U0001F525"),
          { { QStringLiteral("\u2764\uFE0F\u200D\U0001F525"), 2 } } },
        { QStringLiteral("Kaja"),
          QStringLiteral("09:47"),
          QStringLiteral("1\uFE0F\u20E3 Friday or 7\uFE0F\u20E3 Monday? Both suit us in "
                         "\U0001F1EB\U0001F1F7 and \U0001F1E9\U0001F1EA"),
          { { QStringLiteral("1\uFE0F\u20E3"), 6 }, { QStringLiteral("7\uFE0F\u20E3"), 3 } } },
        { QStringLiteral("Ivo \U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074"
                         "\U000E007F"),
          QStringLiteral("09:52"),
          QStringLiteral("\u2764\uFE0F\u200D\U0001F525 "
                         "\U0001F3F3\uFE0F\u200D\U0001F308 \U0001F600"),
          { { QStringLiteral("\U0001F60D"), 8 } } },
    };
    return all;
}
