#pragma once

namespace tocca::platform {

class Application;
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
class MainMenu;
class MainQueue;
class OpenPanels;
class Panels;
class Popovers;
class Random;
class Screens;
class SerialQueues;
class StandardOutput;
class StatusBar;
class Threads;
class Timers;
class TrustQuery;
class UserDefaults;
class Windows;
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
    Application& application;
    Screens& screens;
    Windows& windows;
    Panels& panels;
    Popovers& popovers;
    StatusBar& statusBar;
    MainMenu& mainMenu;
    OpenPanels& openPanels;
    UserDefaults& userDefaults;
};

/// Names the host that the `shared` controllers are built on. Threads: main, once, before any of them is used.
void setDefaultHost(Host& host);

/// The host given to `setDefaultHost`; aborts when there is none. Threads: main.
[[nodiscard]] Host& defaultHost();

} // namespace tocca::platform
