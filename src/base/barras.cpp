#include "base/barras.h"

#include "plataforma/caixas.h"
#include "plataforma/notificador.h"

namespace tramelo {
namespace {

BotaoBarra Botao(std::string palavra, std::string dica, int imagem, bool habilitado) {
    BotaoBarra b;
    b.Key = palavra;
    b.Caption = palavra;
    b.Tag = std::move(palavra);
    b.ToolTipText = std::move(dica);
    b.Image = imagem;
    b.Enabled = habilitado;
    return b;
}

BotaoBarra Separador() {
    BotaoBarra b;
    b.separador = true;
    return b;
}

} // namespace

BotaoBarra* BarraFerramentas::Botao(std::string_view key) {
    for (BotaoBarra& b : Buttons)
        if (!b.separador && b.Key == key) return &b;
    return nullptr;
}

void BarraFerramentas::Habilita(std::string_view key, bool habilitado) {
    if (BotaoBarra* b = Botao(key)) b->Enabled = habilitado;
    Notifica(Mudanca::Barras);
}

void BarraFerramentas::MostraEtiquetas(bool mostrar) {
    for (BotaoBarra& b : Buttons)
        b.Caption = mostrar ? b.Tag : std::string();
    Notifica(Mudanca::Barras);
}

MdiMenu::MdiMenu() {
    cobBarra.Bands(1) = {3000, 540, 7695, false, true};
    cobBarra.Bands(2) = {4215, 540, 135, false, true};
    // Save, Calcular, the calculator, print and export wait for a document
    // that can serve them: the active child switches them.
    tbPadrao.Buttons = {Botao("Novo", "Novo calculo", 1, true),
                        Botao("Abrir", "Abrir calculo", 2, true),
                        Botao("Salvar", "Salvar calculo", 3, false), Separador(),
                        Botao("Sair", "Sair do Tramelo", 4, true)};
    tbCalculo.Buttons = {Botao("Calcular", "Calcular", 1, false),
                         Botao("Calculadora", "Exibir a calculadora", 2, false), Separador(),
                         Botao("Imprimir", "Imprimir relatório", 3, false),
                         Botao("Exportar", "Exportar relatório", 4, false)};
}

MdiMenu& mdiMenu() {
    static MdiMenu m;
    return m;
}

void Atualiza(MdiMenu& m) {
    m.Caption = TituloPrograma;
    Notifica(Mudanca::Barras);
}

} // namespace tramelo
