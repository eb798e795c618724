// A scripted user: answers message and input boxes from a queue and keeps
// every box shown, in order, for the test to look at.
#pragma once

#include "plataforma/ambiente.h"
#include "plataforma/caixas.h"

#include <deque>
#include <string>
#include <vector>

namespace tramelo::teste {

struct CaixaMostrada {
    std::string titulo, texto;
    int estilo = 0;
    bool entrada = false; // an input box
};

class CaixasRoteiro : public Caixas {
  public:
    CaixasRoteiro() : anterior_(ambiente().caixas) { ambiente().caixas = this; }
    ~CaixasRoteiro() override { ambiente().caixas = anterior_; }

    std::deque<int> respostas;      // message box answers; empty: the first button
    std::deque<std::string> textos; // input box answers; empty: ""
    std::vector<CaixaMostrada> mostradas;

    int MsgBox(const std::string& texto, int estilo, const std::string& titulo) override {
        mostradas.push_back({titulo, texto, estilo, false});
        if (!respostas.empty()) {
            int r = respostas.front();
            respostas.pop_front();
            return r;
        }
        int botoes = estilo & 7;
        return botoes == vbYesNo || botoes == vbYesNoCancel ? vbYes : vbOK;
    }
    std::string InputBox(const std::string& prompt, const std::string& titulo,
                         const std::string&) override {
        mostradas.push_back({titulo, prompt, 0, true});
        if (textos.empty()) return {};
        std::string r = textos.front();
        textos.pop_front();
        return r;
    }

  private:
    Caixas* anterior_;
};

} // namespace tramelo::teste
