#include "zelm.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

namespace {

TEST(Version, IsOneRecord) {
    EXPECT_NE(zelmGetLibVersion(), nullptr);
    EXPECT_EQ(zelmGetLibVersion(), zelmGetLibVersion());
}

TEST(Version, FieldByField) {
    const ZelmLibVersion *version = zelmGetLibVersion();
    EXPECT_EQ(version->major, 4);
    EXPECT_EQ(version->minor, 1);
    EXPECT_EQ(version->buildMajor, 11);
    EXPECT_EQ(version->buildMinor, 30);
    char code[4] = {};
    std::memcpy(code, ZELM_TARGET_CODE, sizeof ZELM_TARGET_CODE);
    EXPECT_EQ(std::memcmp(version->targetCode, code, 4), 0) << "zero-filled to four bytes";
    EXPECT_STREQ(version->fileName, "libzelm" ZELM_TARGET_CODE ".so");
    EXPECT_STREQ(version->versionText, "v4.1");
    EXPECT_STREQ(version->buildDate, "Jul 17 2004");
}

TEST(Version, FieldsStandInTheirOrder) {
    EXPECT_EQ(sizeof(ZelmStatus), 4u);
    EXPECT_EQ(offsetof(ZelmLibVersion, major), 0u);
    EXPECT_EQ(offsetof(ZelmLibVersion, minor), 4u);
    EXPECT_EQ(offsetof(ZelmLibVersion, buildMajor), 8u);
    EXPECT_EQ(offsetof(ZelmLibVersion, buildMinor), 12u);
    EXPECT_EQ(offsetof(ZelmLibVersion, targetCode), 16u);
    EXPECT_EQ(sizeof(ZelmLibVersion::targetCode), 4u);
    // 20 on 32-bit x86; a pointer's alignment adds 4 bytes on x86-64
    const std::size_t texts = sizeof(void *) == 4 ? 20 : 24;
    EXPECT_EQ(offsetof(ZelmLibVersion, fileName), texts);
    EXPECT_EQ(offsetof(ZelmLibVersion, versionText), texts + sizeof(void *));
    EXPECT_EQ(offsetof(ZelmLibVersion, buildDate), texts + 2 * sizeof(void *));
    EXPECT_EQ(sizeof(ZelmLibVersion), texts + 3 * sizeof(void *));
}

TEST(Version, StatusValues) {
    EXPECT_EQ(ZELM_OK, 0);
    EXPECT_EQ(ZELM_ERR_SIZE, -6);
    EXPECT_EQ(ZELM_ERR_NULL_PTR, -8);
    EXPECT_EQ(ZELM_ERR_DIV_BY_ZERO, -10);
    EXPECT_EQ(ZELM_ERR_NOT_POS_DEF, -179);
}

} // namespace
