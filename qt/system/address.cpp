// All signs of the phrase are encoded but those that an address may bear anywhere.
#include "qt/system/address.h"

#include <QUrl>

#include "qt/windows/qt_values.h"

namespace quillor {

QString encodedAddress(TextView page, TextView sought) {
    return toQt(page) + QString::fromLatin1(QUrl::toPercentEncoding(toQt(sought), "/:,;@!$'()*"));
}

}  // namespace quillor
