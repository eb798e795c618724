#include "plataforma/relogio.h"

#include <ctime>

namespace tramelo {

Momento RelogioSistema::Agora() {
    std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec, local.tm_wday};
}

} // namespace tramelo
