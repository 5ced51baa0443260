// What the shell tells the page's script: a list of messages, as text that a browser reads.
#pragma once

#include <initializer_list>
#include <string>

#include "core/types.h"
#include "toolkit/controls.h"

namespace quillor {

/// JSON, written as it comes. A value stands in an object behind its key, in a list behind
/// the value before it.
class Messages {
  public:
    Messages& beginObject() { return open('{'); }
    Messages& endObject() { return close('}'); }
    Messages& beginList() { return open('['); }
    Messages& endList() { return close(']'); }
    Messages& key(const char* name);

    /// Whatever its units are, halves of pairs too, the script reads the same text.
    Messages& text(TextView value);
    Messages& word(const std::string& value);  // ASCII
    Messages& number(double value);
    Messages& flag(bool value);
    Messages& none();
    /// As style sheets write it, e.g. "#1e8cdc".
    Messages& color(Color value);
    Messages& numbers(std::initializer_list<Twips> values);
    Messages& area(const Area& place);

    bool isEmpty() const { return out_.empty(); }
    const std::string& written() const { return out_; }

  private:
    Messages& open(char bracket);
    Messages& close(char bracket);
    Messages& value(const std::string& written);
    void separate();

    std::string out_;
    bool first_ = true;  // nothing stands before it in its list or object
};

}  // namespace quillor
