#include "support/temporary_directory.h"

#include <zrproj/userdatum.h>

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <csignal>
#include <limits>
#include <string_view>
#include <vector>

#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ZrProj;
namespace fs = std::filesystem;

namespace {

constexpr char const* others = "; kept\r\n[Program]\r\nwindow = 1\r\n\r\n[Custom Datums]\r\n; mine\r\nodd line\r\n"
                               "Broken=method=NADCON\r\n\r\n[Last]\r\nx=\xFF\r\n";

DATUM2WGS84 datum(double dX = 1) {
    DATUM2WGS84 record = {};
    record.Method = DatumMethodBursaWolf;
    record.Ellipsoid = EllipsoidTypeAiry1830;
    record.dX = dX;
    return record;
}

std::string_view bytesOf(DATUM2WGS84 const& record) {
    return {reinterpret_cast<char const*>(&record), sizeof record};
}

class UserDatums : public testing::Test {
protected:
    UserDatums() { NDatSetProfile(profile.c_str()); }
    ~UserDatums() override { NDatSetProfile(nullptr); }

    void write(std::string const& text) const { std::ofstream(profile, std::ios::binary) << text; }

    static bool set(std::string const& name, double dX = 1) {
        DATUM2WGS84 const record = datum(dX);
        return NDatSetDatum(name.c_str(), &record);
    }

    /// dX of a datum, NaN where there is none.
    static double stored(std::string const& name) {
        DATUM2WGS84 record = {};
        return NDatGetDatumParams(name.c_str(), &record) ? record.dX : std::nan("");
    }

    /// Every file beside the profile, but for the locks.
    int filesLeft() const {
        int count = 0;
        for (auto const& entry : fs::directory_iterator(directory.path()))
            count += entry.path().extension() != ".lock";
        return count;
    }

    TemporaryDirectory const directory;
    std::string const profile = directory.file("profile.ini");
};

/// Runs the work in a process of its own; returns its exit status, or 128 and the signal that ended it.
template <class Work> int inChild(Work const& work) {
    pid_t const child = fork();
    if (child == 0)
        _exit(work());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace

TEST_F(UserDatums, KeepEveryBitOfARecord) {
    DATUM2WGS84 record = {};
    record.Method = DatumMethodBursaWolf;
    record.bFromWGS84 = true;
    record.PrimeMeridian = -17.666666666666668;
    record.dX = 0.1;
    record.dY = -1.0 / 3;
    record.dZ = 1.7014117331926443e38;
    record.rX = 5e-324;
    record.rY = -0.0;
    record.rZ = std::nextafter(1.0, 2);
    record.Scale = -std::numeric_limits<double>::infinity();
    record.MajorRadius = 6378137.0000000009;
    record.Flattening = 1 / 298.257223563;
    record.Reserved[0] = 0x5A;
    record.Reserved[40] = 0xFF;
    ASSERT_TRUE(NDatSetDatum("exact", &record));
    char const* const german = std::setlocale(LC_ALL, "de_DE.UTF-8");
    ASSERT_TRUE(NDatSetDatum("with a comma", &record));
    for (char const* name : {"exact", "EXACT", "with a comma"}) {
        DATUM2WGS84 back = {};
        EXPECT_TRUE(NDatGetDatumParams(name, &back));
        EXPECT_EQ(bytesOf(back), bytesOf(record)) << name << ' ' << (german ? german : "no locale");
    }
    std::setlocale(LC_ALL, "C");
    DatumMethod method = DatumMethodNone;
    EXPECT_TRUE(NDatGetDatumMethod("exact", &method));
    EXPECT_EQ(method, DatumMethodBursaWolf);
}

TEST_F(UserDatums, TakeAnyNameOrRefuseIt) {
    std::vector<std::string> const names{"a=b",    "[x]",      "]",   "\"quoted\"", "'",   "; c",
                                         "#",      " blank ",  " ",   "100%",       "%3d", "%",
                                         "Zürich", "\xFF\xFE", "a,b", "method=x",   ";;;", std::string(255, 'n')};
    for (std::size_t i = 0; i < names.size(); ++i)
        ASSERT_TRUE(set(names[i], static_cast<double>(i))) << names[i];
    ASSERT_EQ(NDatNumDatums(), static_cast<int>(names.size()));
    for (std::size_t i = 0; i < names.size(); ++i) {
        char name[256];
        ASSERT_TRUE(NDatGetDatumName(static_cast<int>(i), name, sizeof name));
        EXPECT_EQ(name, names[i]);
        EXPECT_EQ(stored(names[i]), static_cast<double>(i));
    }
    for (auto const& name : names)
        EXPECT_TRUE(NDatDeleteDatum(name.c_str())) << name;
    EXPECT_EQ(fileBytes(profile), "[Custom Datums]\n");
    for (std::string const& name : {std::string(), std::string("a\nb"), std::string("\t"), std::string(256, 'n')})
        EXPECT_FALSE(set(name)) << name;
}

TEST_F(UserDatums, ReplaceAndRemoveRegardlessOfCase) {
    EXPECT_EQ(NDatNumDatums(), 0);
    EXPECT_FALSE(NDatDeleteDatum("site"));
    EXPECT_TRUE(set("Site", 1) && set("Other", 2) && set("sITE", 3));
    EXPECT_EQ(NDatNumDatums(), 2);
    EXPECT_EQ(stored("SITE"), 3);
    EXPECT_TRUE(NDatDeleteDatum("SITE"));
    EXPECT_FALSE(NDatDeleteDatum("SITE"));
    EXPECT_TRUE(std::isnan(stored("Site")));
    char name[6] = "+++++";
    EXPECT_FALSE(NDatGetDatumName(0, name, 5));
    EXPECT_FALSE(NDatGetDatumName(1, name, 6));
    EXPECT_FALSE(NDatGetDatumName(-1, name, 6));
    EXPECT_STREQ(name, "+++++");
    EXPECT_TRUE(NDatGetDatumName(0, name, 6));
    EXPECT_STREQ(name, "Other");
}

TEST_F(UserDatums, RefuseWhatNoConversionCouldUse) {
    auto const accepted = [&](auto const& change) {
        DATUM2WGS84 record = datum();
        change(record);
        return NDatSetDatum("x", &record);
    };
    EXPECT_FALSE(accepted([](DATUM2WGS84& r) { r.Method = DatumMethodNadcon; }));
    EXPECT_FALSE(accepted([](DATUM2WGS84& r) { r.Method = DatumMethodMRE; }));
    EXPECT_FALSE(accepted([](DATUM2WGS84& r) { r.Method = static_cast<DatumMethod>(99); }));
    EXPECT_FALSE(accepted([](DATUM2WGS84& r) { r.Ellipsoid = EllipsoidTypeNone; }));
    EXPECT_FALSE(accepted([](DATUM2WGS84& r) { r.Ellipsoid = EllipsoidTypeUserDefined; })); // and no radius
    EXPECT_FALSE(accepted([](DATUM2WGS84& r) { r.PrimeMeridian = std::nan(""); }));
    EXPECT_FALSE(accepted([](DATUM2WGS84& r) { r.dX = HUGE_VAL; }));
    EXPECT_FALSE(fs::exists(profile));
    EXPECT_TRUE(accepted([](DATUM2WGS84& r) { r.dY = std::nan(""); })); // as conversions do
    EXPECT_TRUE(accepted([](DATUM2WGS84& r) { r.Method = DatumMethodNone, r.Ellipsoid = EllipsoidTypeNone; }));
    EXPECT_FALSE(NDatSetDatum("x", nullptr) || NDatSetDatum(nullptr, nullptr) || NDatSetProfile("") ||
                 NDatGetDatumParams("x", nullptr) || NDatGetDatumMethod("x", nullptr) || NDatDeleteDatum(nullptr));
}

TEST_F(UserDatums, LeaveTheRestOfTheProfileAlone) {
    write(others);
    EXPECT_EQ(NDatNumDatums(), 0); // the broken one is none
    ASSERT_EQ(chmod(profile.c_str(), 0640), 0);
    EXPECT_TRUE(set("New"));
    std::string expected = others;
    expected.insert(expected.find("\r\n\r\n[Last]") + 2, "New=method=Bursa-Wolf, ellipsoid=5, dx=1\r\n");
    EXPECT_EQ(fileBytes(profile), expected);
    EXPECT_EQ(fs::status(profile).permissions(), fs::perms{0640});
    EXPECT_TRUE(NDatDeleteDatum("New"));
    EXPECT_EQ(fileBytes(profile), others);
    EXPECT_EQ(filesLeft(), 1);
    for (char const* broken :
         {"dx=1", "method=Molodensky, ellipsoid=5, dx=1e999", "method=Molodensky, ellipsoid=5, dx=1 2",
          "method=Molodensky, ellipsoid=5, dq=1", "method=Molodensky, ellipsoid=5,", "method=None, reserved=0",
          "method=None, reserved=0g", "method=Molodensky, ellipsoid=77"}) {
        write(std::string("[Custom Datums]\nD=") + broken +
              "\nE=METHOD = molodensky , DX=2,ellipsoid=5\ne=method=None\n");
        EXPECT_EQ(NDatNumDatums(), 1) << broken;
        EXPECT_EQ(stored("E"), 2);
    }
}

TEST_F(UserDatums, FollowLinksToTheProfile) {
    fs::create_directory(directory.path() / "real");
    fs::create_symlink("real/target.ini", directory.file("middle"));
    fs::create_symlink(directory.file("middle"), profile);
    EXPECT_TRUE(set("Through", 4)); // made where the links point
    EXPECT_TRUE(set("Again", 5));
    EXPECT_TRUE(fs::is_symlink(profile) && fs::is_regular_file(directory.path() / "real/target.ini"));
    EXPECT_EQ(stored("Through") + stored("Again"), 9);
    fs::remove(profile);
    fs::create_symlink("profile.ini", profile);
    EXPECT_FALSE(set("Circle"));
}

TEST_F(UserDatums, StandInTheUsersSettings) {
    std::string const settings = directory.file("settings");
    EXPECT_EQ(inChild([&] {
                  NDatSetProfile(nullptr);
                  setenv("XDG_CONFIG_HOME", settings.c_str(), 1);
                  bool good = set("Mine") && fs::is_regular_file(settings + "/zrproj/zrproj.ini");
                  setenv("XDG_CONFIG_HOME", "relative", 1); // counts as not set
                  setenv("HOME", directory.path().c_str(), 1);
                  good = good && NDatNumDatums() == 0 && set("Mine") &&
                         fs::is_regular_file(directory.file(".config/zrproj/zrproj.ini"));
                  unsetenv("HOME");
                  return good && NDatNumDatums() == 0 && !set("Mine") ? 0 : 1;
              }),
              0);
}

TEST_F(UserDatums, FailWhereNothingCanBeWritten) {
    fs::create_directory(directory.file("directory"));
    write(others);
    for (std::string const& name : {profile + "/below.ini", directory.file("missing/x.ini"), std::string("/proc/x.ini"),
                                    directory.file("directory"), std::string("/dev/full"), std::string("/dev/null")}) {
        ASSERT_TRUE(NDatSetProfile(name.c_str()));
        EXPECT_FALSE(set("X")) << name;
        EXPECT_FALSE(NDatDeleteDatum("X")) << name;
        EXPECT_EQ(NDatNumDatums(), 0) << name;
    }
    NDatSetProfile(profile.c_str());
    write(std::string(1 << 20, ';'));
    EXPECT_FALSE(set("X")); // would be too large to be read again
    write(std::string((1 << 20) + 1, ';'));
    EXPECT_FALSE(set("X"));
    EXPECT_EQ(fs::file_size(profile), (1U << 20) + 1);
}

/// The locks that another user's mask let others only read. Root's right to write in spite of it is given up.
TEST_F(UserDatums, NeedOnlyReadTheLocksOfAnotherUser) {
    ASSERT_TRUE(set("Before"));
    std::string const locks = profile + ".lock";
    ASSERT_EQ(chmod(locks.c_str(), 0444), 0);
    EXPECT_EQ(inChild([&] {
                  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
                  __user_cap_data_struct const none[_LINUX_CAPABILITY_U32S_3] = {};
                  bool const bound = syscall(SYS_capset, &header, none) == 0 && access(locks.c_str(), W_OK) != 0;
                  return bound && set("After", 7) ? 0 : 1;
              }),
              0);
    EXPECT_EQ(stored("After"), 7);
}

/// A limit of file size stands for a full disk: it stops the write after so many bytes.
TEST_F(UserDatums, LoseNothingOnAFullDisk) {
    write(others);
    ASSERT_TRUE(set("Before"));
    std::string const before = fileBytes(profile);
    for (rlim_t bytes : {rlim_t{0}, rlim_t{1}, rlim_t{before.size()}}) {
        EXPECT_EQ(inChild([&] {
                      std::signal(SIGXFSZ, SIG_IGN);
                      rlimit const limit{bytes, bytes};
                      setrlimit(RLIMIT_FSIZE, &limit);
                      return set("More") || !NDatGetDatumParams("Before", std::vector<DATUM2WGS84>(1).data()) ? 1 : 0;
                  }),
                  0)
            << bytes;
        EXPECT_EQ(fileBytes(profile), before);
        EXPECT_EQ(filesLeft(), 1);
    }
}

TEST_F(UserDatums, LoseNothingWhenTheWriterIsKilled) {
    write(others);
    int killed = 0;
    for (unsigned delay = 0; delay < 40; ++delay) {
        int const status = inChild([&] {
            std::signal(SIGALRM, SIG_DFL); // whose default ends the process, wherever it is
            ualarm(500 + 137 * delay, 0);
            for (int i = 0; set(std::to_string(i % 50), i); ++i) {
            }
            return 0;
        });
        killed += status == 128 + SIGALRM;
        std::string const text = fileBytes(profile);
        ASSERT_TRUE(
            text.starts_with("; kept\r\n[Program]\r\nwindow = 1\r\n\r\n[Custom Datums]\r\n; mine\r\nodd line\r\n"
                             "Broken=method=NADCON\r\n"));
        ASSERT_TRUE(text.ends_with("\r\n\r\n[Last]\r\nx=\xFF\r\n"));
    }
    EXPECT_EQ(killed, 40);
    EXPECT_GT(NDatNumDatums(), 0);
    EXPECT_TRUE(set("After")); // over what the last one may have left
    EXPECT_EQ(filesLeft(), 1);
}

TEST_F(UserDatums, KeepTheDatumsOfAllWriters) {
    constexpr int writers = 4, each = 25;
    std::vector<pid_t> children;
    for (int writer = 0; writer < writers; ++writer) {
        pid_t const child = fork();
        if (child == 0) {
            bool good = true;
            for (int i = 0; i < each; ++i)
                good = set(std::to_string(writer) + '/' + std::to_string(i), i) && good;
            _exit(good ? 0 : 1);
        }
        children.push_back(child);
    }
    for (pid_t const child : children) {
        int status = 1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(NDatNumDatums(), writers * each);
}
