#pragma once
// Binary saved-game primitives: little-endian 32-bit ints, 1-byte bools and
// length-prefixed strings, and the base class of every saved engine object.

#include <istream>
#include <ostream>
#include <string>

namespace eng_priv {

class Serializable {
public:
    virtual ~Serializable();
    virtual bool deserialize(std::istream& in) = 0;
    virtual bool serialize(std::ostream& out) = 0;
    virtual bool readHeader(std::istream& in, std::string tag);
    virtual void writeHeader(std::ostream& out, std::string tag);
    virtual bool readFooter(std::istream& in, std::string tag);
    virtual void writeFooter(std::ostream& out, std::string tag);
};

enum StreamKind { kindInt, kindBool, kindString };

// A value to write, tagged with the kind that says which member is meant.
struct StreamValue {
    int intValue = 0;
    bool boolValue = false;
    std::string stringValue;
    StreamKind kind = kindInt;

    StreamValue() = default;
    explicit StreamValue(int v) : intValue(v), kind(kindInt) {}
    explicit StreamValue(bool v) : boolValue(v), kind(kindBool) {}
    explicit StreamValue(std::string v) : stringValue(std::move(v)), kind(kindString) {}
};

// Where a value read goes. A record may be reused for several reads of the
// same kind; each read refills its buffer.
struct StreamTarget {
    void* target = nullptr;
    int intBuffer = 0;
    unsigned char byteBuffer[1000] = {};
    StreamKind kind = kindInt;

    StreamTarget() = default;
    explicit StreamTarget(int* t) : target(t), kind(kindInt) {}
    explicit StreamTarget(bool* t) : target(t), kind(kindBool) {}
    explicit StreamTarget(std::string* t) : target(t), kind(kindString) {}
};

std::ostream& writeValue(std::ostream& out, StreamValue value);
std::istream& readValue(std::istream& in, StreamTarget& target);

}  // namespace eng_priv
