#include "library/summary_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/error.h"

namespace tarvex {
namespace {

// Map names as the lookup saw them; "Nowhere" is not in the table.
struct Maps {
    std::vector<std::string> asked;
    MapNumberLookup lookup = [this](const std::string& name) -> std::uint8_t {
        asked.push_back(name);
        if (name == "Nowhere") Raise(kErrNoCurrentRecord);
        return name == "Map2Bob" ? 2 : 5;
    };
};

std::string Strings(int entries) {
    const char* names[] = {"title", "summary", "objective", "type", "tip", "airfield", "date"};
    std::string text = "[strings]\r\n";
    for (int i = 0; i < entries; ++i)
        text += "\"" + std::string(names[i]) + "_string\"=" + names[i] + " text\r\n";
    return text + "\"name_string.0\"=Pilot\r\n";
}

TEST(SummaryReaderTest, KeyLinesFollowTheirTestsInOrder) {
    struct Case {
        const char* text;
        std::optional<double> allegiance;
        std::optional<std::string> time;
        std::optional<double> clouds;
    };
    const Case cases[] = {
        // Only the first allegiance line counts, and later ones are skipped whole.
        {"allegiance=2\nallegiance=3 time=10:00\n", 2, std::nullopt, std::nullopt},
        // A line that passes a test is tried against no later one.
        {"cloud=1 time=12:45\n", std::nullopt, "12:45", std::nullopt},
        // Keys match in any case, anywhere; the last line of a key wins.
        {"CLOUD=1\nx_cloud=3\n", std::nullopt, std::nullopt, 3},
        // Nothing is trimmed: a trailing blank is the "last character".
        {"cloud=2 \ntime=09:30 \n", std::nullopt, "9:30 ", 0},
        // Any key ending in "time" passes the test for the time.
        {"time=08:00\r\ndowntime=17:15\r\n", std::nullopt, "17:15", std::nullopt},
        // A lone CR ends a line too.
        {"allegiance=1\rcloud=2\r", 1, std::nullopt, 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        Maps maps;
        const MissionSummary s = ReadMissionSummary(c.text, maps.lookup);
        EXPECT_EQ(s.Allegiance, c.allegiance);
        EXPECT_EQ(s.Time, c.time);
        EXPECT_EQ(s.Clouds, c.clouds);
    }
}

TEST(SummaryReaderTest, TextEntriesGoByPositionUpToTheDate) {
    Maps maps;
    MissionSummary s =
        ReadMissionSummary("map=Map2Bob\r\nrequired_success=75=x\r\n" + Strings(7), maps.lookup);
    EXPECT_EQ(s.Map, 2);
    EXPECT_EQ(maps.asked, std::vector<std::string>{"Map2Bob"});
    EXPECT_EQ(s.Reqrd, 75);
    EXPECT_EQ(s.Title, "title text");
    EXPECT_EQ(s.Type, "type text");
    EXPECT_EQ(s.Date, "date text");

    s = ReadMissionSummary("time=10:00\r\n" + Strings(6), maps.lookup);
    EXPECT_EQ(s.Objective, "objective text");
    EXPECT_FALSE(s.Date);

    // Without [strings] the text fields stay empty, and keys behind where it would be count.
    s = ReadMissionSummary("\"title_string\"=Not a title\r\ncloud=1\r\n", maps.lookup);
    EXPECT_FALSE(s.Title);
    EXPECT_EQ(s.Clouds, 1);
}

TEST(SummaryReaderTest, AMapTheTableLacksEndsTheRead) {
    Maps maps;
    EXPECT_THROW(ReadMissionSummary("map=Nowhere\r\n", maps.lookup), AppError);
    // What isn't a mission gives an empty summary.
    const std::string binary("\0\x01\xff=\x80\n\n=", 8);
    for (const std::string& text : {std::string(), binary, std::string(100000, 'x')}) {
        const MissionSummary s = ReadMissionSummary(text, maps.lookup);
        EXPECT_FALSE(s.Title || s.Time || s.Allegiance || s.Map || s.Reqrd);
    }
}

}  // namespace
}  // namespace tarvex
