// Links in the topic folder. Not on Windows, which reserves the making of them.
#include <gtest/gtest.h>

#include "core/files.h"
#include "core/topic_library.h"
#include "tests/support/temp_folder.h"

namespace quillor {
namespace {

TEST(LibraryLinks, AreListedWhenTheyLeadToAFile) {
    const quillor::testing::TempFolder folder;
    folder.write("a.txt", "A");
    std::filesystem::create_symlink("a.txt", folder / "b.txt");
    std::filesystem::create_symlink("nowhere", folder / "c.txt");
    std::filesystem::create_directory_symlink(".", folder / "d.txt");
    const auto files = topicFiles(folder.path());
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(fromPath(files[0].filename()), u"a.txt");
    EXPECT_EQ(fromPath(files[1].filename()), u"b.txt");
}

}  // namespace
}  // namespace quillor
