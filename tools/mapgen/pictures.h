#pragma once
// The pictures of the default installation: the start-up splash, the Summary tab's picture
// and the about box's picture of London.
#include <string>

#include "theatre_map.h"

namespace tarvex::mapgen {

// The chart region a picture needs dumped; false for a picture without one or an unknown name.
bool PictureGmtRequest(const std::string& name, GmtRequest& request);

// name is "Splash", "Summary" or "London1"; gmtDir holds the dumps of PictureGmtRequest.
bool RenderPicture(const std::string& name, const std::string& gmtDir, const std::string& outPath,
                   std::string& error);

}  // namespace tarvex::mapgen
