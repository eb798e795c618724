// Scripted file dialogs: each open or save answers the next name of the
// queue; an empty name, or an empty queue, is the user's cancel.
#pragma once

#include "plataforma/ambiente.h"
#include "plataforma/dialogos.h"

#include <deque>
#include <string>
#include <vector>

namespace tramelo::teste {

class DialogosRoteiro : public Dialogos {
  public:
    DialogosRoteiro() : anterior_(ambiente().dialogos) { ambiente().dialogos = this; }
    ~DialogosRoteiro() override { ambiente().dialogos = anterior_; }

    std::deque<std::string> nomes;
    std::vector<ConfiguraDialogo> mostrados;
    int copias = 1;

    bool ShowOpen(ConfiguraDialogo& d) override { return Responde(d); }
    bool ShowSave(ConfiguraDialogo& d) override { return Responde(d); }
    bool ShowPrinter(ConfiguraDialogo& d) override {
        d.Copies = copias;
        return Responde(d);
    }

  private:
    bool Responde(ConfiguraDialogo& d) {
        mostrados.push_back(d);
        if (nomes.empty()) return false;
        std::string n = nomes.front();
        nomes.pop_front();
        if (n.empty()) return false;
        d.FileName = n;
        return true;
    }
    Dialogos* anterior_;
};

} // namespace tramelo::teste
