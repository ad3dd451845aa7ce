#include "store/record_key.h"

#include <gmock/gmock.h>

namespace magpie {
namespace {

TEST(RecordKey, ATagThatIsAKeyStays) {
    for (const char* key : {"00001", "32767", "00000"}) EXPECT_EQ(recordKey(key), key);
}

TEST(RecordKey, ANumberGetsFiveDigits) {
    EXPECT_EQ(recordKey("1"), "00001");
    EXPECT_EQ(recordKey(" 12 "), "00012");
    EXPECT_EQ(recordKey("000123"), "00123");
    EXPECT_EQ(recordKey("123456"), "123456");
    EXPECT_EQ(recordKey("1.5"), "00002");
    EXPECT_EQ(recordKey("-1"), "-00001");
}

TEST(RecordKey, ATextThatIsNoNumberStaysAndIsNoKey) {
    for (const char* tag : {"", "x", "1 2", "99999999999"}) EXPECT_EQ(recordKey(tag), tag);
}

}  // namespace
}  // namespace magpie
