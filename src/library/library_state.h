#pragma once
// The working values of the mission summary scan and the mission browser.
namespace tarvex {

struct LibraryState {};

}  // namespace tarvex
