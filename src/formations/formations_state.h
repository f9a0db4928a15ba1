#pragma once
// The working values of the Formations tab: the new-record dialog, the aircraft filter, patterns.
namespace tarvex {

struct FormationsState {};

}  // namespace tarvex
