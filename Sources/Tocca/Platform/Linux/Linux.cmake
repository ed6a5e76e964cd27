include(Platform/Linux/Audio/Audio.cmake OPTIONAL)
include(Platform/Linux/Desktop.cmake OPTIONAL)
