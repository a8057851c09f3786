<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Sudoku Vantu</source>
        <translation>Sobre o Sudoku Vantu</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Versão:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Credits:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Application Author: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Icons Author: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Application homepage: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Créditos:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Autores do programa: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Autor dos ícones: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Página do programa: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. Todos os direitos reservados.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>Announcer</name>
    <message>
        <source>candidate %1 back</source>
        <translation>candidato %1 de volta</translation>
    </message>
    <message>
        <source>candidate %1 removed</source>
        <translation>candidato %1 removido</translation>
    </message>
    <message>
        <source>The board is complete</source>
        <translation>O tabuleiro está completo</translation>
    </message>
    <message>
        <source>%1 refused: the board would have no solution</source>
        <translation>%1 recusado: o tabuleiro ficaria sem solução</translation>
    </message>
    <message>
        <source>%1 refused: not this cell&apos;s digit</source>
        <translation>%1 recusado: não é o número desta casa</translation>
    </message>
    <message>
        <source>%1 refused: row %2 already has %1 at column %3</source>
        <translation>%1 recusado: a linha %2 já tem %1 na coluna %3</translation>
    </message>
    <message>
        <source>%1 refused: column %2 already has %1 at row %3</source>
        <translation>%1 recusado: a coluna %2 já tem %1 na linha %3</translation>
    </message>
    <message>
        <source>%1 refused: box %2 already has %1 at row %3, column %4</source>
        <extracomment>%2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands</extracomment>
        <translation>%1 recusado: o bloco %2 já tem %1 na linha %3, coluna %4</translation>
    </message>
    <message>
        <source>candidate %1 refused</source>
        <translation>candidato %1 recusado</translation>
    </message>
    <message>
        <source>Game opened, %1, %2 empty cells</source>
        <extracomment>%1 is the level label (&quot;difficulty: Medium&quot;), %2 how many cells are empty</extracomment>
        <translation>Jogo aberto, %1, %2 casas vazias</translation>
    </message>
    <message>
        <source>New game, %1, %2 empty cells</source>
        <translation>Novo jogo, %1, %2 casas vazias</translation>
    </message>
    <message>
        <source>Keys: R, C and B read the caret&apos;s row, column and box, N what is left to place</source>
        <translation>Teclas: R, C e B leem a linha, a coluna e o bloco do cursor, N o que falta colocar</translation>
    </message>
    <message>
        <source>%1 of digit %2</source>
        <extracomment>%1 how many of the digit %2 are still to be placed</extracomment>
        <translation>%1 vezes o %2</translation>
    </message>
    <message>
        <source>Every digit is placed</source>
        <translation>Todos os números estão colocados</translation>
    </message>
    <message>
        <source>Still to place: %1</source>
        <translation>Falta colocar: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vazia</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <extracomment>%2 lists the nine cells in order, such as &quot;7, empty, 4&quot;</extracomment>
        <translation>Linha %1: %2</translation>
    </message>
    <message>
        <source>Column %1: %2</source>
        <translation>Coluna %1: %2</translation>
    </message>
    <message>
        <source>Box %1: %2</source>
        <translation>Bloco %1: %2</translation>
    </message>
</context>
<context>
    <name>HintController</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>a linha %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>a coluna %1</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>o bloco %1</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>linha %1, coluna %2</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>colunas %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>linhas %1</translation>
    </message>
    <message>
        <source>row %1, columns %2</source>
        <translation>linha %1, colunas %2</translation>
    </message>
    <message>
        <source>column %1, rows %2</source>
        <translation>coluna %1, linhas %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>; </translation>
    </message>
    <message>
        <source>Last empty cell</source>
        <translation>Última casa vazia</translation>
    </message>
    <message>
        <source>Hidden single</source>
        <translation>Único oculto</translation>
    </message>
    <message>
        <source>Naked single</source>
        <translation>Único nu</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Único</translation>
    </message>
    <message>
        <source>Locked candidates</source>
        <translation>Candidatos bloqueados</translation>
    </message>
    <message>
        <source>Naked triple</source>
        <translation>Trio nu</translation>
    </message>
    <message>
        <source>Naked pair</source>
        <translation>Par nu</translation>
    </message>
    <message>
        <source>Naked quad</source>
        <translation>Quarteto nu</translation>
    </message>
    <message>
        <source>Hidden pair</source>
        <translation>Par oculto</translation>
    </message>
    <message>
        <source>Hidden triple</source>
        <translation>Trio oculto</translation>
    </message>
    <message>
        <source>Hidden quad</source>
        <translation>Quarteto oculto</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>a casa %1 contém %2</translation>
    </message>
    <message>
        <source>%1 in %2 lies in %3</source>
        <translation>%3 contém todos os candidatos %1 que %2 tem</translation>
    </message>
    <message>
        <source>in %1, %2 can only go in %3</source>
        <translation>%1 só tem lugar para %2 nas casas %3</translation>
    </message>
    <message>
        <source>in %1, %2 can only hold %3</source>
        <translation>%1 tem as casas %2, que só podem conter %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is the only empty cell in %2, so it holds %3</source>
        <translation>%2 só tem uma casa vazia, %1, que portanto contém %3</translation>
    </message>
    <message>
        <source>in %1, only %2 can hold %3</source>
        <translation>%1 só tem lugar para o %3 na casa %2</translation>
    </message>
    <message>
        <source>%1 can only hold %2</source>
        <translation>a casa %1 só pode conter %2</translation>
    </message>
    <message>
        <source>so these cells keep only %1</source>
        <translation>então essas casas ficam só com %1</translation>
    </message>
    <message>
        <source>so %1 is removed from %2</source>
        <translation>então %1 sai das casas %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>so %1 is the only place left for %2 in %3</source>
        <translation>então %3 só tem lugar para o %2 na casa %1</translation>
    </message>
    <message>
        <source>so %1 can only hold %2</source>
        <translation>então a casa %1 só pode conter %2</translation>
    </message>
    <message>
        <source>The board is complete: there is nothing left to hint.</source>
        <translation>O tabuleiro está completo: não há mais nada a indicar.</translation>
    </message>
    <message>
        <source>The board is empty: enter a puzzle first, or use Make Move.</source>
        <translation>O tabuleiro está vazio: primeiro digite um jogo ou use Fazer jogada.</translation>
    </message>
    <message>
        <source>No rule finds a next step here. Make Move can place a value.</source>
        <translation>Nenhuma regra encontra um próximo passo aqui. Fazer jogada pode colocar um valor.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 holds %2 twice.</source>
        <translation>O tabuleiro se contradiz: %1 contém o %2 duas vezes.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no place left for %2.</source>
        <translation>O tabuleiro se contradiz: %1 não tem mais lugar para o %2.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no candidate left.</source>
        <translation>O tabuleiro se contradiz: a casa %1 não tem mais candidatos.</translation>
    </message>
    <message>
        <source>The hint could not be carried out.</source>
        <translation>Não foi possível aplicar a dica.</translation>
    </message>
</context>
<context>
    <name>KeptGame</name>
    <message>
        <source>The last game could not be read and was set aside.</source>
        <translation>O último jogo não pôde ser lido e foi deixado de lado.</translation>
    </message>
    <message>
        <source>The last game could not be read.</source>
        <translation>O último jogo não pôde ser lido.</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved for the next start.</source>
        <translation>O jogo em andamento não pode ser guardado para a próxima vez.</translation>
    </message>
</context>
<context>
    <name>PencilMarksOptions</name>
    <message>
        <source>Pencil Marks Options</source>
        <translation>Opções de anotações</translation>
    </message>
    <message>
        <source>Autoresolve pencilmarks using following methods:</source>
        <translation>Resolver anotações com estas técnicas:</translation>
    </message>
    <message>
        <source>Available:</source>
        <translation>Disponíveis:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <translation>Selecionadas:</translation>
    </message>
    <message>
        <source>00. Singles Row Only</source>
        <translation>00. Únicos só na linha</translation>
    </message>
    <message>
        <source>01. Singles Col Only</source>
        <translation>01. Únicos só na coluna</translation>
    </message>
    <message>
        <source>02. Singles Square Only</source>
        <translation>02. Únicos só no bloco</translation>
    </message>
    <message>
        <source>03. Singles Row + Col Only</source>
        <translation>03. Únicos na linha + coluna</translation>
    </message>
    <message>
        <source>04. Singles</source>
        <translation>04. Únicos</translation>
    </message>
    <message>
        <source>05. Doubles</source>
        <translation>05. Pares nus</translation>
    </message>
    <message>
        <source>06. Triples</source>
        <translation>06. Trios nus</translation>
    </message>
    <message>
        <source>07. Quads</source>
        <translation>07. Quartetos nus</translation>
    </message>
    <message>
        <source>08. Transitive Doubles</source>
        <translation>08. Pares transitivos</translation>
    </message>
    <message>
        <source>09. Locked by Rows</source>
        <translation>09. Bloqueio por linhas</translation>
    </message>
    <message>
        <source>10. Locked by Cols</source>
        <translation>10. Bloqueio por colunas</translation>
    </message>
    <message>
        <source>11. Locked by Squares</source>
        <translation>11. Bloqueio por blocos</translation>
    </message>
    <message>
        <source>12. Hidden Singles</source>
        <translation>12. Únicos ocultos</translation>
    </message>
    <message>
        <source>13. Hidden Doubles</source>
        <translation>13. Pares ocultos</translation>
    </message>
    <message>
        <source>14. Hidden Triples</source>
        <translation>14. Trios ocultos</translation>
    </message>
    <message>
        <source>15. Hidden Quads</source>
        <translation>15. Quartetos ocultos</translation>
    </message>
</context>
<context>
    <name>PrintingInfoClass</name>
    <message>
        <source>Printing Info</source>
        <translation>Opções de impressão</translation>
    </message>
    <message>
        <source>What to print?</source>
        <translation>O que imprimir?</translation>
    </message>
    <message>
        <source>Current game</source>
        <translation>Jogo atual</translation>
    </message>
    <message>
        <source>Generate and print a new game</source>
        <translation>Gerar e imprimir um jogo novo</translation>
    </message>
    <message>
        <source>Generate and print two games on the same page</source>
        <translation>Gerar e imprimir dois jogos por página</translation>
    </message>
    <message>
        <source>Generate and print four games on the same page</source>
        <translation>Gerar e imprimir quatro jogos por página</translation>
    </message>
    <message>
        <source>How many times to repeat above operation?</source>
        <translation>Quantas vezes repetir a operação?</translation>
    </message>
    <message>
        <source>Repeat count:</source>
        <translation>Repetições:</translation>
    </message>
    <message>
        <source>Level for generated games:</source>
        <translation>Nível dos jogos gerados:</translation>
    </message>
    <message>
        <source>Export as PDF instead of printing</source>
        <translation>Exportar como PDF em vez de imprimir</translation>
    </message>
    <message>
        <source>Show print preview</source>
        <translation>Mostrar visualização</translation>
    </message>
    <message>
        <source>High Resolution (best quality)</source>
        <translation>Alta resolução (melhor qualidade)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Resolvido</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Muito fácil</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Fácil</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Difícil</translation>
    </message>
</context>
<context>
    <name>PuzzleClipboard</name>
    <message>
        <source>The clipboard holds no puzzle.
A puzzle is 81 cells: a digit for a given, 0 or . for an empty cell.</source>
        <translation>A área de transferência não contém um sudoku.
Um sudoku tem 81 casas: um algarismo para cada casa dada, 0 ou . para uma casa vazia.</translation>
    </message>
    <message>
        <source>This puzzle cannot be played:
a row, column or square holds a digit twice.</source>
        <translation>Este sudoku não pode ser jogado:
uma linha, coluna ou quadrado repete um algarismo.</translation>
    </message>
    <message>
        <source>This puzzle has no solution.</source>
        <translation>Este sudoku não tem solução.</translation>
    </message>
    <message>
        <source>This puzzle has more than one solution.</source>
        <translation>Este sudoku tem mais de uma solução.</translation>
    </message>
    <message>
        <source>Puzzle pasted.</source>
        <translation>Sudoku colado.</translation>
    </message>
    <message>
        <source>Puzzle copied.</source>
        <translation>Sudoku copiado.</translation>
    </message>
</context>
<context>
    <name>SudokuWindow</name>
    <message>
        <source>difficulty: none</source>
        <translation>dificuldade: nenhuma</translation>
    </message>
    <message>
        <source>difficulty: Very Easy</source>
        <translation>dificuldade: muito fácil</translation>
    </message>
    <message>
        <source>difficulty: Easy</source>
        <translation>dificuldade: fácil</translation>
    </message>
    <message>
        <source>difficulty: Medium</source>
        <translation>dificuldade: médio</translation>
    </message>
    <message>
        <source>difficulty: Hard</source>
        <translation>dificuldade: difícil</translation>
    </message>
    <message>
        <source>difficulty: user edit</source>
        <translation>dificuldade: edição própria</translation>
    </message>
    <message>
        <source>No more moves can be done.</source>
        <translation>Não há mais jogadas possíveis.</translation>
    </message>
    <message>
        <source>Cell %1 has no solution</source>
        <translation>A casa %1 não tem solução</translation>
    </message>
    <message>
        <source>This is not a valid .sud file</source>
        <translation>Este não é um arquivo .sud válido</translation>
    </message>
    <message>
        <source>Current game will be lost.
Continue?</source>
        <translation>O jogo atual será perdido.
Continuar?</translation>
    </message>
    <message>
        <source>Failed to generate a valid game.</source>
        <translation>Não foi possível gerar um jogo válido.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Parabéns!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Sudoku files (*.sud)</source>
        <translation>Arquivos de Sudoku (*.sud)</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salvar arquivo</translation>
    </message>
    <message>
        <source>Portable document files (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Failed to load game</source>
        <translation>Falha ao abrir o jogo</translation>
    </message>
    <message>
        <source>Failed to save game</source>
        <translation>Falha ao salvar o jogo</translation>
    </message>
    <message>
        <source>Print Document</source>
        <translation>Imprimir documento</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <translation>Falha ao imprimir.</translation>
    </message>
    <message>
        <source>Loaded file version is incompatible
(expected version: %1 actual version: %2)</source>
        <translation>A versão do arquivo carregado é incompatível
(versão esperada: %1, versão real: %2)</translation>
    </message>
    <message>
        <source>difficulty: Expert</source>
        <translation>dificuldade: especialista</translation>
    </message>
</context>
<context>
    <name>SudokuWindowClass</name>
    <message>
        <source>Start a new game</source>
        <translation>Começar um jogo novo</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Jogo</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Novo jogo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>Toolbar Items</source>
        <translation>Itens da barra</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Barra principal</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Resolvido</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Completed Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Novo jogo resolvido&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a new game fully resolved</source>
        <translation>Gerar um jogo já resolvido</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Muito fácil</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Very Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Novo jogo muito fácil&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a very easy game</source>
        <translation>Gerar um jogo muito fácil</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Fácil</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Novo jogo fácil&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a easy game</source>
        <translation>Gerar um jogo fácil</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Medium Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Novo jogo médio&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a medium game</source>
        <translation>Gerar um jogo médio</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Difícil</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Hard Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Novo jogo difícil&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a hard game</source>
        <translation>Gerar um jogo difícil</translation>
    </message>
    <message>
        <source>User Edit</source>
        <translation>Edição própria</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>&amp;Abrir jogo...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Open game from disk&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Abrir jogo do disco&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open Existing Game</source>
        <translation>Abrir jogo salvo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Save Game...</source>
        <translation>&amp;Salvar jogo...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Save Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Salvar jogo&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Save current game</source>
        <translation>Salvar o jogo atual</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Show Print Options&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Opções de impressão&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Show print option dialog</source>
        <translation>Mostrar as opções de impressão</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>&amp;Make Move</source>
        <translation>&amp;Fazer jogada</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Make a move for me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Fazer uma jogada por mim&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Make Move</source>
        <translation>Fazer jogada</translation>
    </message>
    <message>
        <source>&amp;Retract Move</source>
        <translation>&amp;Desfazer jogada</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Retract Move&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Desfazer jogada&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Retract Move</source>
        <translation>Desfazer jogada</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku for one, made with care&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku para um, feito com carinho&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Pencil Marks</source>
        <translation>Anotações</translation>
    </message>
    <message>
        <source>Pencil Marks Options...</source>
        <translation>Opções de anotações...</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>Statusbar</source>
        <translation>Barra de status</translation>
    </message>
    <message>
        <source>New Game Icons</source>
        <translation>Jogos novos</translation>
    </message>
    <message>
        <source>Open &amp;&amp; Save</source>
        <translation>Abrir &amp;&amp; salvar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Back &amp; Forward</source>
        <translation>Voltar &amp; avançar</translation>
    </message>
    <message>
        <source>&amp;Copy Puzzle</source>
        <translation>&amp;Copiar sudoku</translation>
    </message>
    <message>
        <source>Copy the board as 81 characters</source>
        <translation>Copiar o tabuleiro como 81 caracteres</translation>
    </message>
    <message>
        <source>P&amp;aste Puzzle</source>
        <translation>Co&amp;lar sudoku</translation>
    </message>
    <message>
        <source>Play the puzzle on the clipboard</source>
        <translation>Jogar o sudoku da área de transferência</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Obter dica</translation>
    </message>
    <message>
        <source>Show the next step; press again to carry it out</source>
        <translation>Mostra o próximo passo; pressione de novo para aplicá-lo</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Form</source>
        <translation>Formulário</translation>
    </message>
    <message>
        <source>%1; %2 refused</source>
        <extracomment>%1 is a cell&apos;s name or its caret mode, %2 the digit the game refused there</extracomment>
        <translation>%1; %2 recusado</translation>
    </message>
    <message>
        <source>Sudoku board</source>
        <translation>Tabuleiro de Sudoku</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3, given</source>
        <extracomment>%3 is the cell&apos;s digit, a given of the puzzle</extracomment>
        <translation>Linha %1, coluna %2: %3, dado</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <extracomment>%3 is the digit the player (or Make Move) placed</extracomment>
        <translation>Linha %1, coluna %2: %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty, candidates %3</source>
        <extracomment>%3 lists the digits still possible in the cell, such as &quot;2 4 9&quot;</extracomment>
        <translation>Linha %1, coluna %2: vazia, candidatos %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty</source>
        <translation>Linha %1, coluna %2: vazia</translation>
    </message>
    <message>
        <source>Caret: value entry</source>
        <translation>Cursor: número</translation>
    </message>
    <message>
        <source>Caret: pencil marks</source>
        <translation>Cursor: anotações</translation>
    </message>
</context>
</TS>
