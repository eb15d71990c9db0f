// SPDX-License-Identifier: Apache-2.0
#include "Mail.h"

#include "protocol/Literal.h"

#include <QDateTime>
#include <QHash>
#include <QRegularExpression>
#include <QTextCodec>

namespace {

constexpr int longestHeader = 2000;
constexpr int longestText = 20'000;
constexpr int mostHeaders = 200;
constexpr int mostParts = 50;
constexpr int deepestPart = 4;

using Headers = QHash<QByteArray, QByteArray>;

/// A part of a mail: its headers by lower-case name, and what follows them.
struct Part
{
    Headers headers;
    QByteArray body;
};

Part split(const QByteArray &bytes)
{
    Part part;
    QByteArray name;
    int at = 0;
    while (at < bytes.size()) {
        const int end = bytes.indexOf('\n', at);
        const QByteArray line = bytes.mid(at, (end < 0 ? bytes.size() : end) - at);
        at = end < 0 ? bytes.size() : end + 1;
        if (line.trimmed().isEmpty())
            break;
        const bool isContinued = line[0] == ' ' || line[0] == '\t';
        const int colon = line.indexOf(':');
        if (!isContinued)
            name = colon < 0 || part.headers.size() > mostHeaders ? QByteArray()
                                                                  : line.left(colon).toLower();
        QByteArray &value = part.headers[name];
        if (value.size() < longestHeader)
            value += ' ' + line.mid(isContinued ? 0 : colon + 1).trimmed().left(longestHeader);
    }
    part.body = bytes.mid(at);
    return part;
}

/// The parameter \a name of a header, as in `text/plain; name=value`.
QByteArray parameter(const QByteArray &header, const QByteArray &name)
{
    const int at = header.toLower().indexOf(name + '=');
    if (at < 0)
        return {};
    const QByteArray value = header.mid(at + name.size() + 1).trimmed();
    return value.startsWith('"') ? value.split('"')[1] : value.split(';')[0].trimmed();
}

QString decoded(const QByteArray &bytes, const QByteArray &charset)
{
    const QTextCodec *codec = charset.isEmpty() ? nullptr : QTextCodec::codecForName(charset);
    return codec ? codec->toUnicode(bytes) : QString::fromUtf8(bytes);
}

QByteArray unquoted(QByteArray bytes)
{
    bytes.replace("=\r\n", "").replace("=\n", "");
    return QByteArray::fromPercentEncoding(bytes, '=');
}

QString decodedWord(const QRegularExpressionMatch &word)
{
    QByteArray bytes = word.captured(3).toLatin1();
    if (word.captured(2).toUpper() == u"B"_s)
        bytes = QByteArray::fromBase64(bytes);
    else
        bytes = unquoted(bytes.replace('_', ' '));
    return decoded(bytes, word.captured(1).toLatin1());
}

/// The text of a header, whose words may be encoded as `=?utf-8?Q?...?=`.
QString headerText(const QByteArray &header)
{
    static const QRegularExpression pattern(
            u"=\\?([^?\\s]{1,40})\\?([BbQq])\\?([^?\\s]*)\\?=(\\s+(?==\\?))?"_s);
    const QString raw = QString::fromUtf8(header);
    QString text;
    int end = 0;
    for (auto words = pattern.globalMatch(raw); words.hasNext();) {
        const QRegularExpressionMatch word = words.next();
        text += raw.midRef(end, word.capturedStart() - end) + decodedWord(word);
        end = word.capturedEnd();
    }
    return (text + raw.midRef(end)).simplified();
}

/// The first plain text in \a part; empty without one.
QString plainText(const Part &part, int depth)
{
    const QByteArray type = part.headers.value("content-type").trimmed();
    const QByteArray lower = type.toLower();
    if (lower.startsWith("multipart/") && depth < deepestPart) {
        const QByteArray boundary = "--" + parameter(type, "boundary");
        int at = boundary.size() > 2 ? part.body.indexOf(boundary) : -1;
        QString text;
        for (int i = 0; i < mostParts && at >= 0 && text.isEmpty(); ++i) {
            const int start = part.body.indexOf('\n', at) + 1;
            at = start > 0 ? part.body.indexOf(boundary, start) : -1;
            if (at >= 0)
                text = plainText(split(part.body.mid(start, at - start)), depth + 1);
        }
        return text;
    }
    if (!lower.isEmpty() && !lower.startsWith("text/plain"))
        return {};
    const QByteArray encoding = part.headers.value("content-transfer-encoding").trimmed().toLower();
    QByteArray body = part.body.left(4 * longestText);
    if (encoding == "base64")
        body = QByteArray::fromBase64(body);
    else if (encoding == "quoted-printable")
        body = unquoted(body);
    return decoded(body, parameter(type, "charset")).trimmed().left(longestText);
}

/// The name in `Name <address>`, or all of it.
QString authorOf(const QString &from)
{
    const QString name = from.left(from.indexOf(u'<')).remove(u'"').trimmed();
    return (name.isEmpty() ? from : name).left(100);
}

QString subjectOf(QString subject)
{
    static const QRegularExpression prefix(u"^\\s*((re|fwd?|aw|sv)\\s*:|\\[[^\\]]{0,40}\\])\\s*"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    for (int i = 0; i < 10 && subject.contains(prefix); ++i)
        subject.remove(prefix);
    return subject.isEmpty() ? u"(no subject)"_s : subject.left(200);
}

} // namespace

Mail Mail::fromBytes(const QByteArray &bytes)
{
    const Part part = split(bytes);
    const QString date =
            QString::fromLatin1(part.headers.value("date")).section(u'(', 0, 0).trimmed();
    Mail mail;
    mail.author = authorOf(headerText(part.headers.value("from")));
    mail.subject = subjectOf(headerText(part.headers.value("subject")));
    mail.at = qMax(qint64(0), QDateTime::fromString(date, Qt::RFC2822Date).toMSecsSinceEpoch());
    mail.text = plainText(part, 0).remove(u'\r');
    return mail;
}
