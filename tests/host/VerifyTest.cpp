#include "host/Verify.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

using namespace glotta;

TEST(Verify, CountsUnitsAndFormsAndNamesWhatFails) {
    TempFolder folder;
    folder.Put("a/One.PAS", "unit One;\r\r\n\x81\xFF\n");
    folder.Put("a/One.Dfm", "object A: TA\nend\n");
    folder.Put("a/b/Two.hpp", "");
    folder.Put("a/b/Bad.xfm", "object A: TA\n  X = \nend\n");
    folder.Put("a/notes.txt", "object");
    const VerifyResult result = VerifyPaths({folder.Path() / "a", folder.Path() / "a" / "One.PAS"});
    EXPECT_EQ(result.units, 2u);
    EXPECT_EQ(result.forms, 2u);
    ASSERT_EQ(result.failures.size(), 1u);
    EXPECT_EQ(result.failures[0].file, PathText(folder.Path() / "a" / "b" / "Bad.xfm"));
    EXPECT_TRUE(result.failures[0].reason.starts_with("line ")) << result.failures[0].reason;
    EXPECT_THROW(VerifyPaths({folder.Path() / "none"}), Error);
}
