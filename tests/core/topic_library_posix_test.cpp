// Links in the topic folder. Not on Windows, which reserves the making of them.
#include <gtest/gtest.h>
#include <unistd.h>

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
    EXPECT_EQ(fromPath(files[0].path().filename()), u"a.txt");
    EXPECT_EQ(fromPath(files[1].path().filename()), u"b.txt");
}

// Root may list everything, so what root runs is run as another user meanwhile.
TEST(LibraryPermissions, KeepAFolderThatCannotBeListedFromPassingForAnEmptyOne) {
    const quillor::testing::TempFolder folder;
    folder.write("Temas/DEMO.txt", "mine");
    std::filesystem::permissions(folder / "Temas", std::filesystem::perms{0333});
    const uid_t before = geteuid();
    if (before == 0 && seteuid(65534) != 0)
        GTEST_SKIP() << "root cannot be another user here";
    EXPECT_THROW(topicFiles(folder / "Temas"), std::runtime_error);
    ASSERT_EQ(seteuid(before), 0);
    std::filesystem::permissions(folder / "Temas", std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace quillor
