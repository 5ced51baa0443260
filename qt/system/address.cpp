// Finds where the fixed part ends, and encodes what follows.
#include "qt/system/address.h"

#include <QUrl>
#include <algorithm>

#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

// Where the fixed part ends: behind the first "?key=", or behind the host.
qsizetype endOfFixedPart(const QString& address) {
    const qsizetype scheme = address.indexOf("://");
    const qsizetype host = scheme < 0 ? 0 : scheme + 3;
    const qsizetype path = address.indexOf('/', host);
    const qsizetype query = address.indexOf('?', host);
    const qsizetype equals = query < 0 ? -1 : address.indexOf('=', query);
    const bool isKey =
        equals > query + 1 && std::all_of(address.begin() + query + 1, address.begin() + equals,
                                          [](QChar c) { return c.isLetterOrNumber(); });
    if (isKey)
        return equals + 1;
    return path < 0 ? address.size() : path;
}

}  // namespace

QString encodedAddress(TextView address) {
    const QString text = toQt(address);
    const qsizetype fixed = endOfFixedPart(text);
    return text.left(fixed) +
           QString::fromLatin1(QUrl::toPercentEncoding(text.mid(fixed), "/:,;@!$'()*"));
}

}  // namespace quillor
