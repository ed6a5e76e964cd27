// libsndfile 1.2.0 loses the Vorbis description of every Ogg file that it fails to open, some 6 kB each.
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions()
{
    return "leak:vorbis_info_init\n";
}
