#pragma once
// The working values of the aircraft records window.
namespace tarvex {

struct AircraftRecordsState {};

}  // namespace tarvex
