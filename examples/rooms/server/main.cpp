// SPDX-License-Identifier: Apache-2.0
#include "MailArchive.h"
#include "Server.h"
#include "protocol/Literal.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

/// All emoji of a file in the format of Unicode's emoji-test.txt.
QStringList emojiIn(const QString &name)
{
    QStringList emoji;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return emoji;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine(1000));
        if (line.contains(u';') && !line.startsWith(u'#'))
            emoji.append(line.section(u"# "_s, 1).section(u' ', 0, 0));
    }
    return emoji;
}

void addOptions(QCommandLineParser &parser)
{
    parser.addHelpOption();
    parser.addOptions({
            { u"socket"_s, u"The name of the socket."_s, u"name"_s, u"rooms"_s },
            { u"seed"_s, u"What the conversations are made from."_s, u"number"_s, u"1"_s },
            { u"rate"_s, u"How many messages arrive in a second."_s, u"number"_s, u"0"_s },
            { u"typing"_s, u"People type, come and go."_s },
            { u"late"_s, u"Answers come late and out of order."_s },
            { u"fail"_s, u"The next request of this name fails."_s, u"name"_s },
            { u"mailbox"_s, u"Shows the mails of an mbox file."_s, u"file"_s },
            { u"emoji"_s, u"A list of emoji."_s, u"file"_s,
              u"/usr/share/unicode/emoji/emoji-test.txt"_s },
            { u"log"_s, u"Writes each request there."_s, u"file"_s },
            { u"state"_s, u"What was posted survives there."_s, u"file"_s },
            { u"now"_s, u"When the newest messages were written."_s, u"ISO date"_s },
    });
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);

    // A full hour, so that a server that starts again has the same times.
    QDateTime now = QDateTime::fromString(parser.value(u"now"_s), Qt::ISODate);
    if (!now.isValid())
        now = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch() / 3600 * 3600);
    const SeededArchive seeded(parser.value(u"seed"_s).toULongLong(), now,
                               emojiIn(parser.value(u"emoji"_s)));
    std::unique_ptr<Archive> archive = std::make_unique<SeededArchive>(seeded);
    if (parser.isSet(u"mailbox"_s))
        archive = std::make_unique<MailArchive>(parser.value(u"mailbox"_s));
    World world(std::move(archive), parser.value(u"state"_s));
    Server server(world, seeded,
                  { parser.value(u"socket"_s), parser.value(u"rate"_s).toInt(),
                    parser.isSet(u"late"_s), parser.isSet(u"typing"_s), parser.values(u"fail"_s),
                    parser.value(u"log"_s) });
    if (!server.listen())
        qFatal("Cannot listen at %s", qPrintable(parser.value(u"socket"_s)));
    return QCoreApplication::exec();
}
