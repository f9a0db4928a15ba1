// A loaded mission runs the group and pilot clicks: the first pilot of the first group comes
// up with the player mark as the file has it, and a resave writes the formations back.
#include <fstream>
#include <iterator>

#include "document/loader_fixture.h"
#include "document/mission_saver.h"
#include "shell/forms/frm_mission.h"

namespace tarvex::testing {
namespace {

class FormationsLoadTest : public LoaderTest {
  protected:
    static void Replace(std::string& text, const std::string& from, const std::string& to) {
        const size_t at = text.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        text.replace(at, from.size(), to);
    }
    static std::string ReadBack(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    // A section from its header to the blank line that ends it.
    static std::string Section(const std::string& text, const std::string& header) {
        const size_t begin = text.find(header + "\r\n");
        if (begin == std::string::npos) return {};
        return text.substr(begin, text.find("\r\n\r\n", begin) - begin);
    }
};

TEST_F(FormationsLoadTest, ThePlayerOfASecondGroupComesBackFromAResave) {
    // The player moves from the first pilot of Red Section to the pilot of Blue Section.
    std::string text = SampleText();
    Replace(text, "is_player_aircraft=1\r\n", "position_pbh=\r\n");
    Replace(text,
            "id=1020\r\ntype_id=1\r\nname=%name_string.2%\r\nposition_lat=\r\n"
            "position_lon=\r\nposition_alt=\r\nposition_pbh=\r\n",
            "id=1020\r\ntype_id=1\r\nname=%name_string.2%\r\nposition_lat=\r\n"
            "position_lon=\r\nposition_alt=\r\nis_player_aircraft=1\r\n");
    Replace(text, "players_formation=1\r\n", "");
    Replace(text, "unit_id_position.0=1020", "players_formation=1\r\nunit_id_position.0=1020");
    LoadBytes(text, "moved.mis");
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();

    const auto& frm = ed.FrmMission;
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 0);
    EXPECT_EQ(frm.lstPilotName.ListIndex(), 0);
    EXPECT_EQ(frm.cmbFormPattern.ListIndex(), 2);
    EXPECT_EQ(frm.chkPlayer.Value(), kUnchecked);
    EXPECT_FALSE(frm.chkPlayer.Enabled());
    EXPECT_EQ(ed.doc.PlayerGroup, 1);
    EXPECT_EQ(ed.doc.PlayerPilot, 0);
    EXPECT_EQ(ed.doc.PilotIsPlayer(1, 0), 1);

    ed.doc.MissionPath = (t.folder / "resaved.mis").string();
    SaveMission(ed);
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    // The pilots stand as they were, and the player's formation is still the second.
    const std::string saved = ReadBack(ed.doc.MissionPath);
    for (const char* header : {"[unit.0]", "[unit.1]", "[unit.2]"}) {
        EXPECT_FALSE(Section(text, header).empty()) << header;
        EXPECT_EQ(Section(saved, header), Section(text, header));
    }
    EXPECT_EQ(Section(saved, "[formation.0]").find("players_formation"), std::string::npos);
    EXPECT_NE(Section(saved, "[formation.1]").find("players_formation=1"), std::string::npos);
}

}  // namespace
}  // namespace tarvex::testing
