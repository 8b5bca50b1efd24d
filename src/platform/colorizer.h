#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace morpho {

// The recolouring component as the editors use it: recolours one GIF or JPEG file into another of
// the same format. The destination may be the source. Paths are Windows paths. A failure throws
// RunTimeError.
class Colorizer {
  public:
    virtual ~Colorizer() = default;

    virtual std::string SourceFile() const = 0;
    virtual void SetSourceFile(const std::string& path) = 0;
    virtual std::string DestinationFile() const = 0;
    virtual void SetDestinationFile(const std::string& path) = 0;

    virtual void SetHue(double degrees) = 0;           // -180 to 180; 0 is neutral
    virtual void SetSaturation(double factor) = 0;     // 0 to 4; 1 is neutral
    virtual void SetBrightness(double factor) = 0;     // 0 to 4; 1 is neutral
    virtual void SetQuality(std::int16_t factor) = 0;  // 1 to 100, for a JPEG destination
    virtual void SetAuxParameter1(double value) = 0;   // always 0
    virtual void SetAuxParameter2(double value) = 0;   // always 0

    // Reads the source, recolours it with the current parameters and replaces the destination.
    virtual void Colorize() = 0;
};

class ColorizerFactory {
  public:
    virtual ~ColorizerFactory() = default;
    // Throws kCannotCreateComponent when the component is missing.
    virtual std::unique_ptr<Colorizer> Create() = 0;
};

}  // namespace morpho
