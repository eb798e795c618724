// Journeys of a person through the real program: it runs on a display of its
// own and is driven with X events only; what is checked is what a person
// sees or gets: the process alive, the windows there, the files written.
#include "sessao_x.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <vector>

namespace tramelo::teste {
namespace {

namespace fs = std::filesystem;



class Jornada : public ::testing::Test {
  protected:
    Jornada() : x(TRAMELO_PROGRAMA, TRAMELO_DICAS) {}

    // Every journey ends with the program still running.
    void TearDown() override {
        EXPECT_TRUE(x.Vivo());
        if (HasFailure()) {
            const std::string png =
                fs::temp_directory_path() /
                (std::string("jornada-") +
                 ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".png");
            x.Captura(png);
            std::cerr << "screen: " << png << "\nprogram's output:\n" << x.Saida() << "\n";
        }
    }

    // The sample file copied into the session's folder.
    std::string Exemplo(const std::string& nome) {
        const std::string destino = x.Caminho("arquivos/" + nome);
        fs::copy_file(std::string(TRAMELO_EXEMPLOS) + "/" + nome, destino,
                      fs::copy_options::overwrite_existing);
        return destino;
    }

    // Presses a button (of a toolbar or a box) by its caption.
    void Botao(const std::string& nome) {
        auto b = x.Espera("push button", nome, 5000);
        ASSERT_TRUE(b) << nome;
        x.Clica(b->cx(), b->cy());
    }

    // An entry of the menu bar by its accelerators, as the program writes them
    // ("&Arquivo", "Salvar &como..."): Alt and the menu's letter, then each
    // entry's letter; `depois` are keys after them (Enter where two entries
    // share a letter and the first only gets selected). An entry without a
    // letter is clicked.
    void Menu(const std::vector<std::string>& caminho, const std::string& depois = "") {
        for (size_t i = 0; i < caminho.size(); ++i) {
            const std::string& passo = caminho[i];
            const size_t e = passo.find('&');
            const std::string nome = e == std::string::npos ? passo : passo.substr(0, e) + passo.substr(e + 1);
            auto item = x.Espera("menu item", nome, 5000);
            ASSERT_TRUE(item) << nome;
            if (e == std::string::npos) {
                x.Clica(item->cx(), item->cy());
                continue;
            }
            const std::string letra(1, static_cast<char>(std::tolower(passo[e + 1])));
            x.Tecla(i == 0 ? "alt+" + letra : letra);
        }
        if (!depois.empty()) x.Tecla(depois);
    }

    // Types a file's path into the file dialog of that title and accepts it.
    void DialogoDeArquivo(const std::string& titulo, const std::string& caminho) {
        ASSERT_TRUE(x.Espera("dialog", titulo, 5000)) << titulo;
        x.Tecla("ctrl+a");
        x.Digita(caminho);
        x.Tecla("Return");
        ASSERT_TRUE(x.EsperaSumir("dialog", titulo, 5000)) << titulo;
    }

    // The tip of the day, at a start with no file, has the keys at once:
    // Enter and Escape are its OK.
    void FechaDica(const std::string& tecla) {
        ASSERT_TRUE(x.Espera("label", "Você sabia...", 8000));
        x.Tecla(tecla);
        ASSERT_TRUE(x.EsperaSumir("label", "Você sabia...", 5000)) << tecla;
    }

    // The close button drawn in the title bar of a child window.
    // Read again just before: a table sizes itself to its grid once shown.
    // A person clicks at once, also on a window just opened or behind.
    void FechaPelaBarraDeTitulo(const No& janela) {
        const No j = x.Acha(janela.papel, janela.nome).value_or(janela);
        x.Clica(j.x + j.w - 12, j.y + 11);
    }

    // xdg-open as the desktop's handler, writing down what it was given, a
    // line a call, in the file it returns.
    std::string XdgOpenQueAnota() {
        const std::string registro = x.Caminho("xdg-open.txt");
        {
            std::ofstream s(x.Caminho("bin/xdg-open"));
            s << "#!/bin/sh\necho \"$@\" >> '" << registro << "'\n";
        }
        fs::permissions(x.Caminho("bin/xdg-open"), fs::perms::owner_all);
        setenv("PATH", (x.Caminho("bin") + ":" + std::getenv("PATH")).c_str(), 1);
        return registro;
    }

    // The print dialog open: the PDF's name typed into its output field,
    // printed, and the file's text once it is written.
    void ImprimeEmPdf(const std::string& pdf, std::string& texto) {
        auto saida = x.Espera("text", "Arquivo de saída:", 8000);
        ASSERT_TRUE(saida);
        x.Clica(saida->cx(), saida->cy());
        x.Tecla("ctrl+a");
        x.Digita(pdf);
        x.Tecla("Return");
        for (int i = 0; i < 50 && !fs::exists(pdf); ++i) x.Pausa(100);
        ASSERT_TRUE(fs::exists(pdf));
        x.Pausa(500);
        texto = x.Comando("pdftotext -layout '" + pdf + "' - 2>/dev/null");
    }

    SessaoX x;
};

// The calculation and its report switched, minimised, closed and shown again
// through the "Janela" menu, which lists them with the active one checked;
// the report closed by its own title bar comes back with "Calcular", and
// maximised it gives its list the room.
TEST_F(Jornada, JanelasPeloMenuJanela) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    const std::string calculo = "agua.trl", relatorio = "Relatório de Cálculo - agua.trl";
    // Opens the menu and finds a window's entry, "1 agua.trl" and so on.
    auto Entrada = [this](const std::string& janela) -> std::optional<No> {
        x.Tecla("alt+j");
        for (int vez = 0; vez < 30; ++vez, x.Pausa(100))
            for (const No& n : x.Arvore())
                if (n.visivel && n.nome.size() > janela.size() && n.nome.substr(2) == janela &&
                    n.nome[1] == ' ')
                    return n;
        return std::nullopt;
    };
    Botao("Calcular");
    auto r = x.Espera("frame", relatorio, 5000);
    ASSERT_TRUE(r);
    auto e = Entrada(relatorio);
    ASSERT_TRUE(e);
    EXPECT_TRUE(e->marcado);
    x.Tecla("Escape Escape");
    // Switched to the calculation by its digit.
    e = Entrada(calculo);
    ASSERT_TRUE(e);
    EXPECT_FALSE(e->marcado);
    x.Tecla(std::string(1, e->nome[0]));
    e = Entrada(calculo);
    ASSERT_TRUE(e);
    EXPECT_TRUE(e->marcado);
    x.Tecla("Escape Escape");
    // The report minimised by its title bar, and brought back by the menu.
    x.Clica(r->x + r->w - 54, r->y + 11);
    x.Pausa(500);
    auto minimizado = x.Espera("frame", relatorio, 3000);
    ASSERT_TRUE(minimizado);
    EXPECT_LT(minimizado->h, r->h / 2);
    e = Entrada(relatorio);
    ASSERT_TRUE(e);
    x.Tecla(std::string(1, e->nome[0]));
    x.Pausa(500);
    auto devolvido = x.Espera("frame", relatorio, 3000);
    ASSERT_TRUE(devolvido);
    EXPECT_EQ(devolvido->h, r->h);
    // Closed by its title bar it only hides, and leaves the menu; "Calcular"
    // shows it again, as often as the user likes.
    for (int vez = 0; vez < 3; ++vez) {
        FechaPelaBarraDeTitulo(*devolvido);
        ASSERT_TRUE(x.EsperaSumir("frame", relatorio, 5000)) << "vez " << vez;
        if (vez == 0) {
            EXPECT_FALSE(Entrada(relatorio));
            x.Tecla("Escape Escape");
        }
        Botao("Calcular");
        devolvido = x.Espera("frame", relatorio, 5000);
        ASSERT_TRUE(devolvido) << "vez " << vez;
    }
    EXPECT_TRUE(Entrada(relatorio));
    x.Tecla("Escape Escape");
    // Maximised by its title bar's box, the report gives the room to its
    // list.
    const int linhas = x.Acha("list", "")->h;
    x.Clica(devolvido->x + devolvido->w - 32, devolvido->y + 11);
    for (int vez = 0; vez < 30 && x.Acha("list", "")->h < linhas + 100; ++vez) x.Pausa(100);
    EXPECT_GT(x.Acha("list", "")->h, linhas + 100);
}

// The calculator on the flow field takes a division by zero: the box says so
// and the calculator goes on with the operand; "=" then writes the result.
// Opened by a double click, by the toolbar button and by Enter on the field.
TEST_F(Jornada, CalculadoraDivisaoPorZeroSegueEEscreve) {
    auto CalculadoraAtiva = [this] {
        for (int vez = 0; vez < 30; ++vez, x.Pausa(100))
            for (const No& n : x.Arvore())
                if (n.nome == "Calculadora" && n.ativo) return true;
        return false;
    };
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    auto campo = x.Espera("text", "Vazão de projeto", 5000);
    ASSERT_TRUE(campo);
    // A key held down acts once, on its release, whatever the server's
    // autorepeat sends meanwhile: held three seconds, as Qt itself catches
    // most of the repeats and only a few in a second slip past it.
    x.DuploClique(campo->cx(), campo->cy());
    ASSERT_TRUE(x.Espera("label", "50,", 5000));
    x.Comando("xdotool keydown 5");
    x.Pausa(3000);
    x.Comando("xdotool keyup 5");
    EXPECT_TRUE(x.Espera("label", "505,", 3000));
    x.Clica(campo->x - 20, campo->cy());
    ASSERT_TRUE(x.EsperaSumir("label", "505,", 5000));
    int valor = 50;
    for (const std::string modo : {"duplo clique", "botão", "Enter"}) {
        SCOPED_TRACE(modo);
        if (modo == "duplo clique") {
            x.DuploClique(campo->cx(), campo->cy());
        } else {
            x.Clica(campo->cx(), campo->cy());
            if (modo == "botão")
                Botao("Calculadora");
            else
                x.Tecla("Return");
        }
        const std::string operando = std::to_string(valor) + ",";
        ASSERT_TRUE(x.Espera("label", operando, 5000));
        // Keypad "/", the main keyboard's 0, keypad "+".
        x.Tecla("KP_Divide 0 KP_Add");
        ASSERT_TRUE(x.Espera("label", "Não é possível dividir por zero", 5000));
        x.Tecla("Return");
        ASSERT_TRUE(x.EsperaSumir("label", "Não é possível dividir por zero", 5000));
        ASSERT_TRUE(x.Espera("label", operando, 3000)) << "the calculator went away";
        // A person types once the calculator has the keys again.
        ASSERT_TRUE(CalculadoraAtiva()) << "the calculator didn't get the keys back";
        x.Tecla("2 KP_Enter");
        ASSERT_TRUE(x.EsperaSumir("label", operando, 5000));
        valor += 2;
        auto depois = x.Espera("text", "Vazão de projeto", 3000);
        ASSERT_TRUE(depois);
        EXPECT_EQ(depois->texto, std::to_string(valor));
        ASSERT_TRUE(x.Vivo());
    }
    // After the box, a click on the calculation is a cancel like any other.
    x.DuploClique(campo->cx(), campo->cy());
    ASSERT_TRUE(x.Espera("label", "56,", 5000));
    x.Tecla("KP_Divide 0 KP_Add");
    ASSERT_TRUE(x.Espera("label", "Não é possível dividir por zero", 5000));
    x.Tecla("Return");
    ASSERT_TRUE(x.EsperaSumir("label", "Não é possível dividir por zero", 5000));
    ASSERT_TRUE(CalculadoraAtiva());
    x.Clica(campo->x - 20, campo->cy());
    EXPECT_TRUE(x.EsperaSumir("label", "56,", 5000));
    // A paste passes the field's filter; the calculator can't type "7/2" in,
    // says so, and leaves the field as it is.
    x.Comando("printf 7/2 | xclip -selection clipboard > /dev/null 2>&1");
    x.Clica(campo->cx(), campo->cy());
    x.Tecla("Home shift+End ctrl+v");
    x.DuploClique(campo->cx(), campo->cy());
    ASSERT_TRUE(x.Espera("push button", "OK", 5000));
    EXPECT_NE(x.Comando("xdotool search --name 'Código :13'"), "");
    x.Tecla("Return");
    ASSERT_TRUE(x.EsperaSumir("push button", "OK", 5000));
    EXPECT_EQ(x.Espera("text", "Vazão de projeto", 3000)->texto, "7/2");
    x.Clica(campo->cx(), campo->cy());
    x.Tecla("Home shift+End");
    x.Digita("56");
    // The field's text, read back as a person would: copied.
    x.Clica(campo->cx(), campo->cy());
    x.Tecla("Home shift+End ctrl+c");
    EXPECT_EQ(x.AreaDeTransferencia(), "56");
}

// Closing all with unsaved changes asks each calculation: "Cancelar" keeps
// it and is asked again until it goes, "Sim" saves, "Não" drops the changes.
TEST_F(Jornada, FecharTodosPerguntaECadaRespostaValeOQueDiz) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    const std::string pergunta = "Deseja salvar as alterações efetuadas neste Cálculo?";
    // A new flow typed into the open calculation, then "Fechar todos".
    auto MudaEFechaTodos = [&](const std::string& vazao) {
        auto campo = x.Espera("text", "Vazão de projeto", 5000);
        ASSERT_TRUE(campo);
        x.Clica(campo->cx(), campo->cy());
        x.Tecla("Home shift+End");
        x.Digita(vazao);
        Menu({"&Arquivo", "Fechar &todos"}, "Return");
        ASSERT_TRUE(x.Espera("label", pergunta, 5000));
    };
    ASSERT_NO_FATAL_FAILURE(MudaEFechaTodos("60"));
    // "Cancelar" keeps it, and closing all comes back to it and asks again.
    x.Tecla("Escape");
    x.Pausa(500);
    ASSERT_TRUE(x.Espera("label", pergunta, 5000));
    ASSERT_TRUE(x.Acha("frame", "agua.trl"));

    // "Sim" saves the calculation where its name puts it, the program's Saves.
    x.Tecla("alt+s");
    ASSERT_TRUE(x.EsperaSumir("frame", "agua.trl", 5000));
    const std::string salvo = x.Caminho("bin/Saves/agua.trl");
    ASSERT_TRUE(fs::exists(salvo));
    const std::string conteudo = x.Comando("cat '" + salvo + "'");
    EXPECT_NE(conteudo.find("\"60\""), std::string::npos) << conteudo;

    // Another calculation, changed and closed with "Não": its file as it was.
    const std::string vapor = Exemplo("vapor.trl");
    Menu({"&Arquivo", "&Abrir"});
    DialogoDeArquivo("Abrir Tramelo", vapor);
    ASSERT_NO_FATAL_FAILURE(MudaEFechaTodos("7"));
    x.Tecla("alt+n");
    ASSERT_TRUE(x.EsperaSumir("frame", "vapor.trl", 5000));
    EXPECT_EQ(x.Comando("cat '" + vapor + "'"),
              x.Comando("cat '" + std::string(TRAMELO_EXEMPLOS) + "/vapor.trl'"));
    EXPECT_FALSE(fs::exists(x.Caminho("bin/Saves/vapor.trl")));
}

// Saved under a new name, closed, and opened again from the recent files.
TEST_F(Jornada, SalvarComoEReabrirPelosRecentes) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    const std::string novo = x.Caminho("arquivos/copia.trl");
    Menu({"&Arquivo", "Salvar &como..."});
    DialogoDeArquivo("Salvar Como", novo);
    ASSERT_TRUE(fs::exists(novo));
    Menu({"&Arquivo", "Fechar"}); // no letter of its own here
    ASSERT_TRUE(x.EsperaSumir("frame", "agua.trl", 5000));
    Menu({"&Arquivo", "Arquivos recentes"});
    // The newest entry comes first; the one saved under its new name.
    std::optional<No> entrada;
    for (const No& n : x.Arvore())
        if (n.visivel && n.papel == "menu item" && n.nome.rfind("1 ", 0) == 0) entrada = n;
    ASSERT_TRUE(entrada);
    x.Clica(entrada->cx(), entrada->cy());
    EXPECT_TRUE(x.Espera("frame", "copia.trl", 5000));
    // And by the open dialog, the sample again.
    Menu({"&Arquivo", "&Abrir"});
    DialogoDeArquivo("Abrir Tramelo", Exemplo("vapor.trl"));
    EXPECT_TRUE(x.Espera("frame", "vapor.trl", 5000));
}

// The windows of the help menu and the options open and close as a person
// closes them; the about box's address goes to the desktop's mail handler.
TEST_F(Jornada, TabelasDicasOpcoesESobre) {
    const std::string registro = XdgOpenQueAnota();
    ASSERT_TRUE(x.Inicia());
    ASSERT_NO_FATAL_FAILURE(FechaDica("Return"));
    // The program's own icon on its window, not the window manager's.
    EXPECT_NE(x.Comando("xprop -id \"$(xdotool search --onlyvisible --name '^Tramelo$' | head -1)\" "
                        "_NET_WM_ICON | head -c 100")
                  .find("CARDINAL"),
              std::string::npos);
    // The tables closed by their close boxes. The mass table opened again
    // comes where it was, under the hand still resting on its close box: a
    // click there, with no move, closes it.
    const std::string massa = "Massa específica do vapor superaquecido - Pressão (kgf/cm2) / Temperatura (ºC)\"  ";
    const std::string volume = "Volume específico do vapor superaquecido - Pressão (kgf/cm2) / Temperatura (ºC)";
    Menu({"Aj&uda", "D&ocumentação", "&Massa do Vapor Superaquecido"});
    auto janela = x.Espera("frame", massa, 5000);
    ASSERT_TRUE(janela);
    FechaPelaBarraDeTitulo(*janela);
    ASSERT_TRUE(x.EsperaSumir("frame", massa, 3000));
    Menu({"Aj&uda", "D&ocumentação", "&Massa do Vapor Superaquecido"});
    ASSERT_TRUE(x.Espera("frame", massa, 5000));
    x.Comando("xdotool click 1");
    EXPECT_TRUE(x.EsperaSumir("frame", massa, 3000));
    Menu({"Aj&uda", "D&ocumentação", "&Volume do Vapor Superaquecido"});
    janela = x.Espera("frame", volume, 5000);
    ASSERT_TRUE(janela);
    FechaPelaBarraDeTitulo(*janela);
    EXPECT_TRUE(x.EsperaSumir("frame", volume, 3000));
    x.Comando("xdotool mousemove 640 900"); // the hand moves on
    Menu({"Aj&uda", "Exibir &dicas..."});
    ASSERT_TRUE(x.Espera("label", "Você sabia...", 5000));
    x.Tecla("Escape");
    EXPECT_TRUE(x.EsperaSumir("label", "Você sabia...", 5000));
    Menu({"E&xibir", "&Opções..."});
    ASSERT_TRUE(x.Espera("check box", "Barra de Ferramentas de Cálculo", 5000)); // each box by its caption
    x.Tecla("Escape");
    EXPECT_TRUE(x.EsperaSumir("dialog", "Opções", 5000));
    Menu({"Aj&uda", "&Sobre o Tramelo..."});
    auto link = x.Espera("label", "E-mail: suporte@quillon.com.br", 5000);
    ASSERT_TRUE(link);
    x.Clica(link->cx(), link->cy());
    x.Pausa(1000);
    std::ifstream r(registro);
    std::string pedido;
    std::getline(r, pedido);
    EXPECT_EQ(pedido.rfind("mailto:suporte@quillon.com.br?", 0), 0u) << pedido;
    x.Tecla("Escape");
}

// The help menu without the manual: its box takes the keys, whether opened
// by the menu's keys, a click or F1, and Enter or Escape close it. With the manual beside the
// program, F1 and "Como utilizar a ajuda..." hand its first page to the
// desktop's browser, the second at its section on reading it.
TEST_F(Jornada, AjudaCaixaSemManualEManualNoNavegador) {
    const std::string registro = XdgOpenQueAnota();
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    const std::string semAjuda = "Não foi possivel exibir o arquivo da ajuda. Não há nenhum arquivo de "
                                 "Ajuda associado à este projeto.";
    auto FechaCom = [&](const std::string& tecla) {
        ASSERT_TRUE(x.Espera("label", semAjuda, 5000));
        x.Tecla(tecla);
        ASSERT_TRUE(x.EsperaSumir("label", semAjuda, 5000)) << tecla << " went elsewhere";
    };
    Menu({"Aj&uda", "&Conteúdo e índice..."});
    ASSERT_NO_FATAL_FAILURE(FechaCom("Return"));
    Menu({"Aj&uda", "Como utilizar a ajuda..."}); // clicked: no letter of its own here
    ASSERT_NO_FATAL_FAILURE(FechaCom("Escape"));
    x.Tecla("F1");
    ASSERT_NO_FATAL_FAILURE(FechaCom("Return"));
    ASSERT_TRUE(x.Acha("frame", "agua.trl"));

    fs::copy(TRAMELO_MANUAL, x.Caminho("bin/manual"), fs::copy_options::recursive);
    x.Tecla("F1");
    Menu({"Aj&uda", "Como utilizar a ajuda..."});
    std::vector<std::string> pedidos;
    for (int i = 0; i < 50 && pedidos.size() < 2; ++i, x.Pausa(100)) {
        pedidos.clear();
        std::ifstream r(registro);
        for (std::string l; std::getline(r, l);) pedidos.push_back(l);
    }
    const std::string pagina = "file://" + x.Caminho("bin/manual/index.html");
    EXPECT_EQ(pedidos, (std::vector<std::string>{pagina, pagina + "#como-usar"}));
    EXPECT_FALSE(x.Acha("label", semAjuda));
}

// Qt's own dialogs speak Portuguese: the open dialog and the page set-up
// (the print dialog in the journey that prints).
TEST_F(Jornada, DialogosDoQtEmPortugues) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    Menu({"&Arquivo", "&Abrir"});
    ASSERT_TRUE(x.Espera("dialog", "Abrir Tramelo", 5000));
    for (const char* rotulo : {"Procurar em:", "Nome do arquivo:", "Arquivos do tipo:"})
        EXPECT_TRUE(x.Espera("label", rotulo, 3000)) << rotulo;
    x.Tecla("Escape");
    ASSERT_TRUE(x.EsperaSumir("dialog", "Abrir Tramelo", 5000));
    Menu({"&Arquivo", "Configurar impressão..."});
    ASSERT_TRUE(x.Espera("dialog", "Configurar impressão", 5000));
    for (const char* grupo : {"Papel", "Orientação", "Margens"})
        EXPECT_TRUE(x.Espera("panel", grupo, 3000)) << grupo;
    x.Tecla("Escape");
    EXPECT_TRUE(x.EsperaSumir("dialog", "Configurar impressão", 5000));
}

// The report printed to a PDF in two copies and exported to a text file:
// both written, with the report's lines.
TEST_F(Jornada, ImprimeEmPdfEExporta) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    Botao("Calcular");
    ASSERT_TRUE(x.Espera("frame", "Relatório de Cálculo - agua.trl", 5000));
    const std::string txt = x.Caminho("arquivos/relatorio.txt");
    Botao("Exportar");
    DialogoDeArquivo("Exportar relatório", txt);
    ASSERT_TRUE(fs::exists(txt));
    EXPECT_NE(x.Comando("cat '" + txt + "'").find("FT-2301"), std::string::npos); // written in Windows-1252

    const std::string pdf = x.Caminho("arquivos/folha.pdf");
    Botao("Imprimir");
    // Qt's print dialog in Portuguese, as the program around it.
    auto saida = x.Espera("text", "Arquivo de saída:", 8000);
    ASSERT_TRUE(saida);
    EXPECT_TRUE(x.Acha("push button", "Opções >>") && x.Acha("push button", "Propriedades"));
    // Two copies: the file has the data sheet twice.
    Botao("Opções >>");
    auto copias = x.Espera("spin button", "Cópias:", 5000);
    ASSERT_TRUE(copias);
    x.Clica(copias->cx(), copias->cy());
    x.Tecla("ctrl+a");
    x.Digita("2");
    std::string texto;
    ASSERT_NO_FATAL_FAILURE(ImprimeEmPdf(pdf, texto));
    const size_t primeira = texto.find("Flange Taps");
    ASSERT_NE(primeira, std::string::npos) << texto;
    EXPECT_NE(texto.find("Flange Taps", primeira + 1), std::string::npos) << texto;
    EXPECT_NE(x.Comando("pdfinfo '" + pdf + "' 2>/dev/null").find("Pages:           2"), std::string::npos);
}

// The steam sample: the window "Propriedades da água e do vapor" opened from
// the menu "Ferramentas" takes the calculation's 10,2 Kg/cm² and 200 ºC;
// "Aplicar ao cálculo" writes density, viscosity and k, and the report of
// "Calcular" shows them. Expected texts: the row of
// tests/data/agua/referencia.py (python3-iapws) at 1000,2783 kPa, 200 ºC.
TEST_F(Jornada, PropriedadesDoVaporAplicadasAoCalculo) {
    ASSERT_TRUE(x.Inicia({Exemplo("vapor.trl")}));
    ASSERT_TRUE(x.Espera("frame", "vapor.trl", 5000));
    Menu({"&Ferramentas", "&Propriedades da água e do vapor..."});
    auto pressao = x.Espera("text", "Pressão absoluta", 5000);
    ASSERT_TRUE(pressao);
    EXPECT_EQ(pressao->texto, "10,2");
    EXPECT_EQ(x.Espera("text", "Temperatura", 3000).value_or(No{}).texto, "200");
    EXPECT_TRUE(x.Espera("label", "4,85572", 3000)); // the density, shown
    Botao("Aplicar ao cálculo");
    // The calculation's rows as a person sees them, then its report.
    const std::pair<const char*, const char*> linhas[] = {
        {"Massa Específica (proj)", "4,85572"}, {"Viscosidade dinâmica (proj)", "0,0158759"},
        {"Relação k=Cp/Cv", "1,29908"}};
    for (int vez = 0; vez < 50 && x.Acha("text", linhas[0].first).value_or(No{}).texto != linhas[0].second; ++vez)
        x.Pausa(100);
    for (const auto& [rotulo, valor] : linhas)
        EXPECT_EQ(x.Acha("text", rotulo).value_or(No{}).texto, valor) << rotulo;
    Botao("Calcular");
    ASSERT_TRUE(x.Espera("frame", "Relatório de Cálculo - vapor.trl", 5000));
    const std::vector<No> arvore = x.Arvore();
    for (const auto& [rotulo, valor] : linhas) {
        const std::string inicio = std::string(" ") + rotulo + " _";
        auto linha = std::find_if(arvore.begin(), arvore.end(), [&](const No& n) {
            return n.papel == "list item" && n.nome.rfind(inicio, 0) == 0;
        });
        ASSERT_NE(linha, arvore.end()) << rotulo;
        EXPECT_NE(linha->nome.find(std::string("_ ") + valor), std::string::npos) << linha->nome;
    }
}

// An existing plate checked in the report's ISO tab: a bore typed wrong is
// told and kept, a good one gives the table and both pictures, and the
// print with the ISO page carries them. The screenshots stay in the
// session's folder with TRAMELO_JORNADA_GUARDA=1.
TEST_F(Jornada, VerificaPlacaExistenteEImprime) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    Botao("Calcular");
    const std::string relatorio = "Relatório de Cálculo - agua.trl";
    ASSERT_TRUE(x.Espera("frame", relatorio, 5000));
    auto aba = x.Espera("page tab", "ISO 5167-2:2003", 5000);
    ASSERT_TRUE(aba);
    x.Clica(aba->cx(), aba->cy());
    // The tab's page scrolls: an object is brought into its visible part by
    // the wheel, as a person does, before it is touched or looked at.
    auto NaVista = [&](const std::string& papel, const std::string& nome) -> std::optional<No> {
        int passo = 0, antes = 0; // pixels a wheel's click moves, learned from the first
        for (int vez = 0; vez < 12; ++vez) {
            std::optional<No> janela, pagina, alvo;
            for (const No& n : x.Arvore()) {
                if (n.papel == "frame" && n.nome == relatorio) janela = n;
                else if (janela && !pagina && n.papel == "layered pane" && n.nivel > janela->nivel)
                    pagina = n;
                if (pagina && n.visivel && n.papel == papel && n.nome == nome) alvo = n;
            }
            if (!alvo || !pagina) {
                x.Pausa(100);
                continue;
            }
            // Shown when all of it shows; one about as tall as the page or
            // taller, when it fills the page but for a wheel's step.
            const int visto = std::min(alvo->y + alvo->h, pagina->y + pagina->h) -
                              std::max(alvo->y, pagina->y);
            const int basta = alvo->h < pagina->h - 60 ? alvo->h : pagina->h - 60;
            if (visto >= basta) return alvo;
            if (vez > 0 && passo == 0) passo = std::abs(alvo->y - antes);
            antes = alvo->y;
            const int distancia = alvo->cy() - pagina->cy();
            const int cliques = passo > 0 ? std::max(1, std::abs(distancia) / passo) : 1;
            // No --sync: a pointer already there would never be seen arriving.
            x.Comando("xdotool mousemove " + std::to_string(pagina->cx()) + " " +
                      std::to_string(pagina->y + 8) + " sleep 0.1 click --repeat " +
                      std::to_string(cliques) + " --delay 30 " + (distancia > 0 ? "5" : "4"));
            x.Pausa(100);
        }
        return std::nullopt;
    };
    const std::string diametro = "Diâmetro do orifício a 20 ºC (mm)";
    auto campo = NaVista("text", diametro);
    ASSERT_TRUE(campo);
    EXPECT_EQ(campo->texto, "61,83"); // Tramelo's bore, as its report prints it

    // Letters: a box says so, and the bore is there to be typed again.
    x.Clica(campo->cx(), campo->cy());
    x.Tecla("Home shift+End");
    x.Digita("6O");
    auto verificar = NaVista("push button", "Verificar");
    ASSERT_TRUE(verificar);
    x.Clica(verificar->cx(), verificar->cy());
    const std::string aviso =
        "O diâmetro do orifício a 20 ºC tem que ser um número, em mm (por exemplo 61,83).";
    ASSERT_TRUE(x.Espera("label", aviso, 5000));
    x.Tecla("Return");
    ASSERT_TRUE(x.EsperaSumir("label", aviso, 5000));
    EXPECT_FALSE(x.Acha("table", "Tabela da verificação"));

    // A 60 mm plate over a range that reaches below the least ReD.
    campo = NaVista("text", diametro);
    ASSERT_TRUE(campo);
    x.Clica(campo->cx(), campo->cy());
    x.Tecla("Home shift+End");
    x.Digita("60");
    auto faixa = NaVista("text", "Vazões (% da vazão de projeto)");
    ASSERT_TRUE(faixa);
    x.Clica(faixa->cx(), faixa->cy());
    x.Tecla("Home shift+End");
    x.Digita("2; 10; 25; 50; 75; 100; 120");
    x.Tecla("Return");
    auto tabela = NaVista("table", "Tabela da verificação");
    ASSERT_TRUE(tabela);
    x.Captura(x.Caminho("verificacao-1-tabela.png"));
    int linhas = 0, fora = 0;
    for (const No& n : x.Arvore()) {
        linhas += n.papel == "table cell" && n.nome == "dentro";
        fora += n.papel == "table cell" && n.nome == "ReD";
    }
    EXPECT_EQ(linhas, 6);
    EXPECT_EQ(fora, 1); // 2 %: ReD 3452 against 170 β² D = 170 · 60² / 102,26 = 5985
    int capturas = 1;
    for (const std::string figura :
         {"Limites de uso (ISO 5167-2, 5.3.1) - Flange Taps", "Pressão diferencial × vazão"}) {
        auto f = NaVista("chart", figura);
        ASSERT_TRUE(f) << figura;
        EXPECT_GT(f->w, 200) << figura;
        EXPECT_GT(f->h, 150) << figura;
        x.Captura(x.Caminho("verificacao-" + std::to_string(++capturas) + "-figura.png"));
    }

    // Printed with the ISO page: the rating's table and both pictures on it.
    const std::string pdf = x.Caminho("arquivos/verificacao.pdf");
    Botao("Imprimir");
    Botao("Opções >>");
    auto abaIso = x.Espera("page tab", "ISO 5167-2", 5000);
    ASSERT_TRUE(abaIso);
    x.Clica(abaIso->cx(), abaIso->cy());
    auto segunda = x.Espera(
        "check box", "Imprimir a verificação pela ISO 5167-2:2003 como segunda página", 5000);
    ASSERT_TRUE(segunda);
    x.Clica(segunda->cx(), segunda->cy());
    std::string texto;
    ASSERT_NO_FATAL_FAILURE(ImprimeEmPdf(pdf, texto));
    for (const std::string parte :
         {"Verificação de placa existente (ISO 5167-2:2003)", "ReD abaixo do limite a 2 % da vazão",
          "Limites de uso (ISO 5167-2, 5.3.1) - Flange Taps", "Pressão diferencial × vazão",
          "Vazão de projeto", "Ponto de projeto"})
        EXPECT_NE(texto.find(parte), std::string::npos) << parte;
    // Its pages as pictures, beside the screenshots.
    x.Comando("pdftoppm -r 60 -png '" + pdf + "' '" + x.Caminho("pagina") + "'");
}

// The main window moved and resized, then the exit: the next start is at the
// same place and size. A second start hands its file to the running program.
TEST_F(Jornada, SaiComJanelaMovidaEVoltaNoMesmoLugar) {
    const std::string janela = "xdotool search --onlyvisible --name '^Tramelo$' ";
    auto geometria = [&] { return x.Comando(janela + "getwindowgeometry %1"); };
    ASSERT_TRUE(x.Inicia());
    ASSERT_NO_FATAL_FAILURE(FechaDica("Escape"));
    x.Comando(janela + "windowmove %1 150 120 windowsize %1 800 640");
    x.Pausa(500);
    const std::string antes = geometria();
    Menu({"&Arquivo", "Sai&r"});
    ASSERT_EQ(x.Espera(10000), 0) << x.Saida();
    ASSERT_TRUE(x.Inicia());
    ASSERT_NO_FATAL_FAILURE(FechaDica("Return"));
    x.Pausa(500);
    EXPECT_EQ(geometria(), antes);

    // A second start with a file: it ends at once, and the file is open in
    // the first.
    const std::string segunda = x.Comando("'" + x.Caminho("bin/Tramelo") + "' '" +
                                          Exemplo("vapor.trl") + "' > /dev/null 2>&1; echo $?");
    EXPECT_EQ(segunda, "0\n");
    EXPECT_TRUE(x.Espera("frame", "vapor.trl", 8000));
}

// Ctrl+C in the terminal the program was started from, and that terminal
// closed, end it as "Sair" does: the next start has the run's recent file,
// its bars and its place.
TEST_F(Jornada, CtrlCETerminalFechadoSaemComoSair) {
    const std::string janela = "xdotool search --onlyvisible --name '^Tramelo$' ";
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    ASSERT_TRUE(x.Acha("status bar", ""));
    Menu({"E&xibir", "Barra de &status"});
    ASSERT_TRUE(x.EsperaSumir("status bar", "", 5000));
    x.Sinaliza(SIGHUP);
    ASSERT_EQ(x.Espera(10000), 0) << x.Saida();
    ASSERT_TRUE(x.Inicia());
    ASSERT_NO_FATAL_FAILURE(FechaDica("Escape"));
    EXPECT_FALSE(x.Acha("status bar", ""));
    Menu({"&Arquivo", "Arquivos recentes"});
    bool recente = false;
    for (const No& n : x.Arvore())
        recente |= n.visivel && n.papel == "menu item" && n.nome.rfind("1 ", 0) == 0 &&
                   n.nome.find("agua.trl") != std::string::npos;
    EXPECT_TRUE(recente);
    x.Tecla("Escape Escape");
    x.Comando(janela + "windowmove %1 130 90");
    x.Pausa(500);
    const std::string antes = x.Comando(janela + "getwindowgeometry %1");
    x.Sinaliza(SIGINT);
    ASSERT_EQ(x.Espera(10000), 0) << x.Saida();
    ASSERT_TRUE(x.Inicia());
    ASSERT_NO_FATAL_FAILURE(FechaDica("Return"));
    EXPECT_EQ(x.Comando(janela + "getwindowgeometry %1"), antes);
}

// The menus' keys win over the text fields' own: in the tag, Ctrl+A opens a
// calculation and Ctrl+B saves; in the report's header, Ctrl+A opens, Ctrl+P
// prints and Ctrl+O makes a new calculation. A new calculation from the
// toolbar's "Novo" has the keys, as one from the menu has.
TEST_F(Jornada, AtalhosDoMenuVencemOsCamposENovoTemAsTeclas) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    auto Dialogo = [this](const std::string& tecla, const std::string& titulo) {
        x.Tecla(tecla);
        ASSERT_TRUE(x.Espera("dialog", titulo, 5000)) << tecla;
        x.Tecla("Escape");
        ASSERT_TRUE(x.EsperaSumir("dialog", titulo, 5000)) << tecla;
    };
    auto tag = x.Espera("text", "Tag", 5000);
    ASSERT_TRUE(tag);
    x.Clica(tag->cx(), tag->cy());
    ASSERT_NO_FATAL_FAILURE(Dialogo("ctrl+a", "Abrir Tramelo"));
    x.Clica(tag->cx(), tag->cy());
    x.Tecla("End");
    x.Digita("B");
    x.Tecla("ctrl+b");
    for (int vez = 0; vez < 30 && !fs::exists(x.Caminho("bin/Saves/agua.trl")); ++vez) x.Pausa(100);
    EXPECT_TRUE(fs::exists(x.Caminho("bin/Saves/agua.trl")));

    Botao("Calcular");
    ASSERT_TRUE(x.Espera("frame", "Relatório de Cálculo - agua.trl", 5000));
    x.Pausa(500); // the focus stands in the report's "Cliente"
    ASSERT_NO_FATAL_FAILURE(Dialogo("ctrl+a", "Abrir Tramelo"));
    ASSERT_NO_FATAL_FAILURE(Dialogo("ctrl+p", "Imprimir"));
    x.Tecla("ctrl+o");
    ASSERT_TRUE(x.Espera("frame", "Cálculo 1", 5000));

    Botao("Novo");
    ASSERT_TRUE(x.Espera("frame", "Cálculo 2", 5000));
    // Down on the first list, the orifice kind, chooses its first item.
    auto escolhidos = [this] {
        int n = 0;
        for (const No& no : x.Arvore())
            n += no.visivel && no.papel == "combo box" && no.nome == "Placa de orifício";
        return n;
    };
    const int antes = escolhidos();
    x.Tecla("Down");
    for (int vez = 0; vez < 20 && escolhidos() == antes; ++vez) x.Pausa(100);
    EXPECT_EQ(escolhidos(), antes + 1);
}

// A calculation made while the toolbars were hidden is still inside the work
// area when they come back: no window hangs past its edge, no scroll bars.
TEST_F(Jornada, BarrasDeVoltaNaoEmpurramJanelasParaFora) {
    ASSERT_TRUE(x.Inicia({Exemplo("agua.trl")}));
    auto Barras = [this] {
        for (const char* barra : {"Botões &padrão", "Barra de &calculo"})
            Menu({"E&xibir", "&Barra de ferramentas", barra});
    };
    Barras();
    ASSERT_TRUE(x.EsperaSumir("tool bar", "tbPadrao", 5000));
    x.Tecla("ctrl+o");
    ASSERT_TRUE(x.Espera("frame", "Cálculo 1", 5000));
    Barras();
    ASSERT_TRUE(x.Espera("tool bar", "tbPadrao", 5000));
    x.Pausa(500);
    std::optional<No> area, calculo;
    bool barraDeRolagem = false;
    for (const No& n : x.Arvore()) {
        if (!n.visivel) continue;
        if (n.papel == "layered pane") area = n;
        if (n.papel == "frame" && n.nome == "Cálculo 1") calculo = n;
        barraDeRolagem |= n.nivel == 3 && n.papel == "scroll bar";
    }
    ASSERT_TRUE(area && calculo);
    EXPECT_LE(calculo->y + calculo->h, area->y + area->h);
    EXPECT_FALSE(barraDeRolagem);
}

} // namespace
} // namespace tramelo::teste
