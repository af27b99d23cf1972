#include "BackupMessagesCalls.h"

#include <string>

#if defined(_WIN32)
#define PLUG_IN_API __declspec(dllexport)
#else
#define PLUG_IN_API __attribute__((visibility("default")))
#endif

extern "C" PLUG_IN_API void start() {
    registerBackupMessages();
}

extern "C" PLUG_IN_API void report(long long time, std::string& text) {
    constexpr int day = 24 * 60 * 60;
    text = (BackupMessages::MSG_BACKUP_DONE(1234, 56789.04, time)
            << BackupMessages::MSG_BACKUP_NEXT(time + 7 * day))
               .toString();
}
