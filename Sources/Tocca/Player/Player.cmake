app_module(tocca_player_interface
    HEADERS
        Player/AudioOutput.h
        Player/RenderSource.h
    DEPENDS tocca_platform)
