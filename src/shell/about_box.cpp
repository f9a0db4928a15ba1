#include "shell/about_box.h"

#include <exception>

#include "common/paths.h"
#include "shell/editor.h"
#include "shell/forms/frm_about.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/sounds.h"

namespace tarvex {

namespace {

// A sound made for the box alone; a missing file stays silent.
void PlayFromSoundFolder(Editor& ed, const char* file) {
    const int handle = ed.svc.sound.Load(JoinPath(JoinPath(ed.options.SimPath, "sound"), file));
    PlaySound(ed, handle);
}

}  // namespace

void mnuAbout_Click(Editor& ed) {
    ed.frmAbout.ShowModal();
}

namespace frm_about {

void Form_Load(Editor& ed) {
    try {
        ed.frmAbout.picAbout.LoadPicture(JoinPath(ed.options.MapPath, "London1.bmp"));
    } catch (const std::exception&) {
    }
    // The closing button is a bare picture: give it a face, so that it reads as a button.
    PictureSurface& ok = ed.frmAbout.picOK;
    ok.Cls();
    ok.Box(0, 0, ok.ScaleWidth() - 15, ok.ScaleHeight() - 15);
    ok.SetCurrent((ok.ScaleWidth() - ok.TextWidth("OK")) / 2,
                  (ok.ScaleHeight() - ok.TextHeight("OK")) / 2);
    ok.Print("OK");
    // The engine has one volume for all sounds, so this one plays at that of sndCheckbox.
    PlayFromSoundFolder(ed, "amb9.wav");
}

}  // namespace frm_about

void picOK_Click(Editor& ed) {
    ed.frmAbout.UnloadForm();
    PlayFromSoundFolder(ed, "exp.wav");

    auto& main = ed.MDIMissionED;
    const float left = main.Left();
    const float top = main.Top();
    const float width = main.Width();
    const float height = main.Height();

    main.Move(left + width / 2, top + height / 2, 12, 13);
    main.SetVisible(true);
    float grownHeight = 0;
    for (float w = 12; w <= 9432; w += 500) {
        grownHeight += 366;
        const float h = main.Height() < 7188 ? grownHeight : main.Height();
        main.Move(main.Left() - 250, main.Top() - 188, w, h);
        ed.svc.clock.DoEvents();
    }
    main.Move(left, top, width, height);
}

}  // namespace tarvex
