#include "cli/points/row_stream.h"

#include "cli/text/usage_error.h"
#include "tests/cli/support.h"

#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>
#include <thread>

namespace ZrProj::Command {
namespace {

/// Adds 1 to x. Some blocks take longer than others, so that threads overtake each other.
struct AddOne : PointWork {
    std::string header(std::string_view line, Layout const& layout) const override {
        return headerWith(line, layout, {"more"});
    }
    void convert(PointBlock& block, Layout const&) const override {
        auto const first = static_cast<int>(block.points.front().x);
        std::this_thread::sleep_for(std::chrono::milliseconds(first % 7));
        for (std::size_t i = 0; i < block.points.size(); ++i)
            if (block.states[i] == PointState::Good)
                block.points[i].x += 1;
        if (first == failing)
            throw std::runtime_error("fails");
    }
    int failing = -1;
};

struct Results {
    std::string out;
    int status = 0;
};

Results run(std::vector<std::string> const& files, int threads, PointWork const& work = AddOne()) {
    TemporaryDirectory const directory;
    int const descriptor = open(directory.file("out").c_str(), O_WRONLY | O_CREAT, 0600);
    Output output(descriptor);
    ColumnRequest const columns{Operation::Inverse, {}, nullptr, false};
    int const status = RowStream(work, {files, columns, threads}, RowWriter(0, false), output).run(true);
    close(descriptor);
    return {fileBytes(directory.file("out")), status};
}

/// Lines with numbers from `first` on, a bad one now and then.
std::string numberedLines(int first, int count) {
    std::string text;
    for (int i = first; i < first + count; ++i)
        text += std::to_string(i) + (i % 10007 == 0 ? " bad\n" : " 5\n");
    return text;
}

TEST(RowStream, ResultsDoNotDependOnTheNumberOfThreads) {
    TextFile const header("easting,northing\n1,2\n"), large(numberedLines(1, 120000)), last(numberedLines(400000, 9));
    std::vector<std::string> const files{header.name(), large.name(), "/nowhere/at/all", header.name(), last.name()};
    testing::internal::CaptureStderr();
    Results const one = run(files, 1);
    std::string const errors = testing::internal::GetCapturedStderr();
    EXPECT_EQ(one.status, 1);
    EXPECT_EQ(one.out.substr(0, 45), "easting,northing,more\n1,2,2,2\n2 5\n3 5\n4 5\n5 5");
    EXPECT_NE(errors.find(":10007: northing \"bad\" is not a number"), std::string::npos) << errors;
    EXPECT_NE(errors.find("/nowhere/at/all"), std::string::npos) << errors;
    for (int const threads : {2, 5}) {
        testing::internal::CaptureStderr();
        Results const several = run(files, threads);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), errors) << threads;
        EXPECT_TRUE(several.out == one.out) << threads;
        EXPECT_EQ(several.status, 1);
    }
}

TEST(RowStream, AFailureEndsTheRunBehindWhatCameBefore) {
    TextFile const large(numberedLines(1, 120000)), unusable("name,place\n");
    testing::internal::CaptureStderr(); // of bad lines, of no interest here
    for (int const threads : {1, 4}) {
        AddOne work;
        EXPECT_EQ(messageOf<UsageError>([&] {
                      run({large.name(), unusable.name(), large.name()}, threads);
                  }),
                  unusable.name() +
                      ":1: the header has no columns \"easting\" and \"northing\"; name them with --columns");
        work.failing = 4097; // a block of its own piece
        EXPECT_EQ(messageOf<std::runtime_error>([&] { run({large.name()}, threads, work); }), "fails");
    }
    testing::internal::GetCapturedStderr();
}

} // namespace
} // namespace ZrProj::Command
