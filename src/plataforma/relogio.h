// The clock, as a platform service, so that dated texts are testable.
#pragma once

namespace tramelo {

struct Momento {
    int ano = 2000, mes = 1, dia = 1; // mes 1..12
    int hora = 0, minuto = 0, segundo = 0;
    int diaSemana = 6; // 0 domingo .. 6 sábado
};

class Relogio {
public:
    virtual ~Relogio() = default;
    virtual Momento Agora() = 0;
};

// The local time of the machine.
class RelogioSistema : public Relogio {
public:
    Momento Agora() override;
};

} // namespace tramelo
