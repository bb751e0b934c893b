#include "datum/grid_folders.h"

#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <cstdlib>

using ZrProj::datum::GridFolders;

namespace {

void make(std::string const& path) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path) << "grid";
}

/// An environment variable with another value while the object lives.
class Variable {
public:
    Variable(char const* name, std::string const& value) : name_(name) {
        if (char const* const before = std::getenv(name))
            before_ = before;
        setenv(name, value.c_str(), 1);
    }
    ~Variable() { before_ ? setenv(name_, before_->c_str(), 1) : unsetenv(name_); }
    Variable(Variable const&) = delete;
    Variable& operator=(Variable const&) = delete;

private:
    char const* name_;
    std::optional<std::string> before_;
};

} // namespace

TEST(GridFolders, LooksInTheCallersFoldersThenInTheEnvironments) {
    TemporaryDirectory const root;
    for (char const* const file :
         {"own/a.gsb", "more/a.gsb", "more/b.gsb", "env/b.gsb", "env/c.gsb", "proj/c.gsb", "proj/d.gsb"})
        make(root.file(file));
    Variable const ours("ZRPROJ_GRIDS", root.file("none") + ":" + root.file("env")),
        theirs("PROJ_DATA", root.file("proj"));
    GridFolders const folders(":" + root.file("own") + "::" + root.file("more") + ":");
    EXPECT_EQ(folders.find("a.gsb"), root.file("own/a.gsb"));
    EXPECT_EQ(folders.find("b.gsb"), root.file("more/b.gsb"));
    EXPECT_EQ(folders.find("c.gsb"), root.file("env/c.gsb"));
    EXPECT_EQ(folders.find("d.gsb"), root.file("proj/d.gsb"));
    EXPECT_EQ(folders.find("zrproj-no-such-grid.gsb"), std::nullopt);
}

TEST(GridFolders, FindsPlainFilesOnlyWhateverTheirLetterCase) {
    TemporaryDirectory const root;
    make(root.file("one/Ntv2_0.GSB"));
    make(root.file("one/CONUS.las"));
    make(root.file("one/conus.las"));
    make(root.file("one/inner/x.gsb"));
    std::filesystem::create_directory(root.path() / "one/folder.gsb");
    make(root.file("two/folder.gsb"));
    GridFolders const folders(root.file("one") + ":" + root.file("two"));
    EXPECT_EQ(folders.find("ntv2_0.gsb"), root.file("one/Ntv2_0.GSB"));
    EXPECT_EQ(folders.find("conus.las"), root.file("one/conus.las")); // the very name first
    EXPECT_EQ(folders.find("Conus.LAS"), root.file("one/CONUS.las"));
    EXPECT_EQ(folders.find("folder.gsb"), root.file("two/folder.gsb"));
    EXPECT_EQ(folders.find("inner/X.gsb"), root.file("one/inner/x.gsb"));
}

TEST(GridFolders, StaysWithinItsFolders) {
    TemporaryDirectory const root;
    make(root.file("secret.gsb"));
    make(root.file("grids/inner/x.gsb"));
    GridFolders const folders(root.file("grids"));
    for (std::string const& name :
         {std::string("../secret.gsb"), std::string("inner/../../secret.gsb"), root.file("secret.gsb"), std::string(),
          std::string("inner/"), std::string(".."), std::string("inner/x.gsb\0", 12)})
        EXPECT_EQ(folders.find(name), std::nullopt) << name;
}
