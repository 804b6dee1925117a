#pragma once

#include <chrono>
#include <string>
#include <string_view>

/// A clock offset and its camera in words. An offset is what is added to the camera's time: a
/// positive one means that the camera was slow.
namespace pinmora {

/// "3 min 12 s", "2 h", and with days beyond 48 hours: "3 d 2 h". The sign does not count.
std::string durationWords(std::chrono::seconds duration);

/// "about 3 min 12 s": any span or offset that is not known exactly.
std::string aboutWords(std::string_view span);

/// "The camera was 3 min 12 s slow.", "The camera was 2 h fast.", "The camera’s clock was right.",
/// and of an approximate one "The camera was about 37 min slow."
std::string offsetSentence(std::chrono::seconds offset, bool isApproximate = false);
/// The same of one of several cameras: "Canon EOS 5D: 3 min 12 s slow"; "" is the common clock.
std::string offsetSentenceOf(std::string_view camera, std::chrono::seconds offset,
                             bool isApproximate = false);

/// "+2 h 00 min", "−3 min 12 s": short, with its sign.
std::string shortOffset(std::chrono::seconds offset);

/// What a camera ("make, model, serial number") is called: "Canon EOS 5D".
std::string cameraName(std::string_view camera);
/// The same without the make: "EOS 5D".
std::string modelName(std::string_view camera);

} // namespace pinmora
