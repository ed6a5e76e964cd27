#pragma once

namespace tocca::platform {

class AudioDevices;
class AudioPlayers;
class Clock;
class Directories;
class EventTaps;
class Files;
class FileStore;
class Haptics;
class LocalMonitors;
class LoginItem;
class MainQueue;
class Random;
class SerialQueues;
class StandardOutput;
class Threads;
class Timers;
class TrustQuery;
class Workspace;

/// Every service that the controllers may ask of the system they run on. Lifetime: outlives every controller.
struct Host {
    MainQueue& mainQueue;
    SerialQueues& serialQueues;
    Threads& threads;
    Timers& timers;
    Clock& clock;
    EventTaps& eventTaps;
    LocalMonitors& localMonitors;
    TrustQuery& trustQuery;
    AudioPlayers& audioPlayers;
    AudioDevices& audioDevices;
    Haptics& haptics;
    Workspace& workspace;
    LoginItem& loginItem;
    Directories& directories;
    Files& files;
    FileStore& fileStore;
    Random& random;
    StandardOutput& standardOutput;
};

/// Names the host that the `shared` controllers are built on. Threads: main, once, before any of them is used.
void setDefaultHost(Host& host);

/// The host given to `setDefaultHost`; aborts when there is none. Threads: main.
[[nodiscard]] Host& defaultHost();

} // namespace tocca::platform
