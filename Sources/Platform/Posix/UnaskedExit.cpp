#include "Platform/Posix/UnaskedExit.h"

#include <QtGlobal>

#include <cstdlib>
#include <utility>

namespace {

const std::function<void()>* savesNow = nullptr;

void saveAndLeave() {
    // Once, also when saving itself ends the process.
    if (const auto* save = std::exchange(savesNow, nullptr)) {
        (*save)();
        std::_Exit(EXIT_SUCCESS);
    }
}

} // namespace

UnaskedExit::UnaskedExit(std::function<void()> save)
    : m_save(std::move(save)) {
    Q_ASSERT_X(savesNow == nullptr, "UnaskedExit", "there is one a process");
    savesNow = &m_save;
    if (std::atexit(saveAndLeave) != 0)
        qFatal("no place for what is done at exit");
}

UnaskedExit::~UnaskedExit() {
    savesNow = nullptr;
}
