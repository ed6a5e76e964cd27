#pragma once

namespace tocca::platform {

/// Every service that the controllers may ask of the system they run on. Lifetime: outlives every controller.
struct Host {
    class MainQueue& mainQueue;
    class SerialQueues& serialQueues;
    class Threads& threads;
    class Timers& timers;
    class Clock& clock;
    class EventTaps& eventTaps;
    class LocalMonitors& localMonitors;
    class TrustQuery& trustQuery;
    class AudioPlayers& audioPlayers;
    class AudioDevices& audioDevices;
    class Haptics& haptics;
    class Workspace& workspace;
    class LoginItem& loginItem;
    class Directories& directories;
    class Files& files;
    class FileStore& fileStore;
    class Archives& archives;
    class SoundDecoder& soundDecoder;
    class Random& random;
    class StandardOutput& standardOutput;
    class Application& application;
    class Screens& screens;
    class Windows& windows;
    class Panels& panels;
    class Popovers& popovers;
    class StatusBar& statusBar;
    class MainMenu& mainMenu;
    class OpenPanels& openPanels;
    class UserDefaults& userDefaults;
};

/// Names the host that the `shared` controllers are built on. Threads: main, once, before any of them is used.
void setDefaultHost(Host& host);

/// The host given to `setDefaultHost`; aborts when there is none. Threads: main.
[[nodiscard]] Host& defaultHost();

} // namespace tocca::platform
