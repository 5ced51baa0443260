// Each "&" is looked at together with the character behind it.
#include "toolkit/caption.h"

#include "core/text_rules.h"

namespace quillor {

char16_t accessKey(TextView caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&')
            continue;
        if (caption[i + 1] != u'&')
            return upperCase(caption[i + 1]);
        ++i;
    }
    return 0;
}

Text plainCaption(TextView caption) {
    Text plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && ++i == caption.size())
            break;
        plain += caption[i];
    }
    return plain;
}

char16_t accessKey(const Label& label) {
    return label.literal ? u'\0' : accessKey(TextView(label.caption));
}

Text plainCaption(const Label& label) {
    return label.literal ? label.caption : plainCaption(TextView(label.caption));
}

}  // namespace quillor
