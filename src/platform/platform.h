#pragma once

namespace morpho {

class AutomationFactory;
class Clipboard;
class Clock;
class CodePage;
class ColorizerFactory;
class Environment;
class FileSystem;
class Registry;
class Resources;
class Shell;
class Toolkit;

// Everything outside that the system may touch. Whoever starts the program builds it and owns the
// parts; they outlive every window. It is passed down by reference, and nothing outside is reached
// in another way.
struct Platform {
    Registry& registry;
    FileSystem& files;
    CodePage& codePage;
    Shell& shell;
    Clock& clock;
    Environment& environment;
    const Resources& resources;
    ColorizerFactory& colorizers;
    Toolkit& toolkit;
    AutomationFactory& automation;
    Clipboard& clipboard;
};

}  // namespace morpho
