<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Sudoku Vantu</source>
        <translation>Informazioni su Sudoku Vantu</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Versione:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Credits:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Application Author: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Icons Author: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Application homepage: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Riconoscimenti:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Autori del programma: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Autore delle icone: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Sito del programma: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Gli sviluppatori di Sudoku Vantu. Tutti i diritti riservati.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>Announcer</name>
    <message>
        <source>candidate %1 back</source>
        <translation>candidato %1 ripristinato</translation>
    </message>
    <message>
        <source>candidate %1 removed</source>
        <translation>candidato %1 tolto</translation>
    </message>
    <message>
        <source>The board is complete</source>
        <translation>La griglia è completa</translation>
    </message>
    <message>
        <source>%1 refused: the board would have no solution</source>
        <translation>%1 rifiutato: la griglia non avrebbe soluzione</translation>
    </message>
    <message>
        <source>%1 refused: not this cell&apos;s digit</source>
        <translation>%1 rifiutato: non è la cifra di questa casella</translation>
    </message>
    <message>
        <source>%1 refused: row %2 already has %1 at column %3</source>
        <translation>%1 rifiutato: la riga %2 ha già %1 nella colonna %3</translation>
    </message>
    <message>
        <source>%1 refused: column %2 already has %1 at row %3</source>
        <translation>%1 rifiutato: la colonna %2 ha già %1 nella riga %3</translation>
    </message>
    <message>
        <source>%1 refused: box %2 already has %1 at row %3, column %4</source>
        <extracomment>%2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands</extracomment>
        <translation>%1 rifiutato: il riquadro %2 ha già %1 nella riga %3, colonna %4</translation>
    </message>
    <message>
        <source>candidate %1 refused</source>
        <translation>candidato %1 rifiutato</translation>
    </message>
    <message>
        <source>Game opened, %1, %2 empty cells</source>
        <extracomment>%1 is the level label (&quot;difficulty: Medium&quot;), %2 how many cells are empty</extracomment>
        <translation>Partita aperta, %1, %2 caselle vuote</translation>
    </message>
    <message>
        <source>New game, %1, %2 empty cells</source>
        <translation>Nuova partita, %1, %2 caselle vuote</translation>
    </message>
    <message>
        <source>Keys: R, C and B read the caret&apos;s row, column and box, N what is left to place</source>
        <translation>Tasti: R, C e B leggono riga, colonna e riquadro del cursore, N quanto resta da inserire</translation>
    </message>
    <message>
        <source>%1 of digit %2</source>
        <extracomment>%1 how many of the digit %2 are still to be placed</extracomment>
        <translation>%1 volte il %2</translation>
    </message>
    <message>
        <source>Every digit is placed</source>
        <translation>Tutte le cifre sono inserite</translation>
    </message>
    <message>
        <source>Still to place: %1</source>
        <translation>Resta da inserire: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuota</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <extracomment>%2 lists the nine cells in order, such as &quot;7, empty, 4&quot;</extracomment>
        <translation>Riga %1: %2</translation>
    </message>
    <message>
        <source>Column %1: %2</source>
        <translation>Colonna %1: %2</translation>
    </message>
    <message>
        <source>Box %1: %2</source>
        <translation>Riquadro %1: %2</translation>
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
        <translation>la riga %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>la colonna %1</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>il riquadro %1</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>riga %1, colonna %2</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>colonne %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>righe %1</translation>
    </message>
    <message>
        <source>row %1, columns %2</source>
        <translation>riga %1, colonne %2</translation>
    </message>
    <message>
        <source>column %1, rows %2</source>
        <translation>colonna %1, righe %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>; </translation>
    </message>
    <message>
        <source>Last empty cell</source>
        <translation>Ultima casella vuota</translation>
    </message>
    <message>
        <source>Hidden single</source>
        <translation>Singolo nascosto</translation>
    </message>
    <message>
        <source>Naked single</source>
        <translation>Singolo nudo</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Singolo</translation>
    </message>
    <message>
        <source>Locked candidates</source>
        <translation>Candidati bloccati</translation>
    </message>
    <message>
        <source>Naked triple</source>
        <translation>Terna nuda</translation>
    </message>
    <message>
        <source>Naked pair</source>
        <translation>Coppia nuda</translation>
    </message>
    <message>
        <source>Naked quad</source>
        <translation>Quaterna nuda</translation>
    </message>
    <message>
        <source>Hidden pair</source>
        <translation>Coppia nascosta</translation>
    </message>
    <message>
        <source>Hidden triple</source>
        <translation>Terna nascosta</translation>
    </message>
    <message>
        <source>Hidden quad</source>
        <translation>Quaterna nascosta</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>la casella %1 contiene %2</translation>
    </message>
    <message>
        <source>%1 in %2 lies in %3</source>
        <translation>%3 contiene tutti i candidati %1 che %2 ha</translation>
    </message>
    <message>
        <source>in %1, %2 can only go in %3</source>
        <translation>%1 ha posto per %2 solo nelle caselle %3</translation>
    </message>
    <message>
        <source>in %1, %2 can only hold %3</source>
        <translation>%1 ha le caselle %2, che possono contenere solo %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is the only empty cell in %2, so it holds %3</source>
        <translation>%2 ha una sola casella vuota, %1, che quindi contiene %3</translation>
    </message>
    <message>
        <source>in %1, only %2 can hold %3</source>
        <translation>%1 ha posto per il %3 solo nella casella %2</translation>
    </message>
    <message>
        <source>%1 can only hold %2</source>
        <translation>la casella %1 può contenere solo %2</translation>
    </message>
    <message>
        <source>so these cells keep only %1</source>
        <translation>quindi queste caselle tengono solo %1</translation>
    </message>
    <message>
        <source>so %1 is removed from %2</source>
        <translation>quindi %1 si toglie dalle caselle %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>so %1 is the only place left for %2 in %3</source>
        <translation>quindi %3 ha posto per il %2 solo nella casella %1</translation>
    </message>
    <message>
        <source>so %1 can only hold %2</source>
        <translation>quindi la casella %1 può contenere solo %2</translation>
    </message>
    <message>
        <source>The board is complete: there is nothing left to hint.</source>
        <translation>La griglia è completa: non resta nulla da suggerire.</translation>
    </message>
    <message>
        <source>The board is empty: enter a puzzle first, or use Make Move.</source>
        <translation>La griglia è vuota: inserisci prima uno schema, oppure usa Fai una mossa.</translation>
    </message>
    <message>
        <source>No rule finds a next step here. Make Move can place a value.</source>
        <translation>Nessuna regola trova qui un passo successivo. Fai una mossa può inserire un valore.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 holds %2 twice.</source>
        <translation>La griglia si contraddice: %1 contiene il %2 due volte.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no place left for %2.</source>
        <translation>La griglia si contraddice: %1 non ha più posto per il %2.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no candidate left.</source>
        <translation>La griglia si contraddice: la casella %1 non ha più candidati.</translation>
    </message>
    <message>
        <source>The hint could not be carried out.</source>
        <translation>Non è stato possibile applicare il suggerimento.</translation>
    </message>
</context>
<context>
    <name>KeptGame</name>
    <message>
        <source>The last game could not be read and was set aside.</source>
        <translation>L’ultima partita era illeggibile ed è stata messa da parte.</translation>
    </message>
    <message>
        <source>The last game could not be read.</source>
        <translation>L’ultima partita era illeggibile.</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved for the next start.</source>
        <translation>La partita in corso non può essere conservata per il prossimo avvio.</translation>
    </message>
</context>
<context>
    <name>PencilMarksOptions</name>
    <message>
        <source>Pencil Marks Options</source>
        <translation>Opzioni dei candidati</translation>
    </message>
    <message>
        <source>Autoresolve pencilmarks using following methods:</source>
        <translation>Risolvi i candidati con questi metodi:</translation>
    </message>
    <message>
        <source>Available:</source>
        <translation>Disponibili:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <translation>Scelti:</translation>
    </message>
    <message>
        <source>00. Singles Row Only</source>
        <translation>00. Singoli, solo righe</translation>
    </message>
    <message>
        <source>01. Singles Col Only</source>
        <translation>01. Singoli, solo colonne</translation>
    </message>
    <message>
        <source>02. Singles Square Only</source>
        <translation>02. Singoli, solo riquadri</translation>
    </message>
    <message>
        <source>03. Singles Row + Col Only</source>
        <translation>03. Singoli, solo righe + colonne</translation>
    </message>
    <message>
        <source>04. Singles</source>
        <translation>04. Singoli</translation>
    </message>
    <message>
        <source>05. Doubles</source>
        <translation>05. Coppie</translation>
    </message>
    <message>
        <source>06. Triples</source>
        <translation>06. Terne</translation>
    </message>
    <message>
        <source>07. Quads</source>
        <translation>07. Quaterne</translation>
    </message>
    <message>
        <source>08. Transitive Doubles</source>
        <translation>08. Coppie transitive</translation>
    </message>
    <message>
        <source>09. Locked by Rows</source>
        <translation>09. Bloccati per righe</translation>
    </message>
    <message>
        <source>10. Locked by Cols</source>
        <translation>10. Bloccati per colonne</translation>
    </message>
    <message>
        <source>11. Locked by Squares</source>
        <translation>11. Bloccati per riquadri</translation>
    </message>
    <message>
        <source>12. Hidden Singles</source>
        <translation>12. Singoli nascosti</translation>
    </message>
    <message>
        <source>13. Hidden Doubles</source>
        <translation>13. Coppie nascoste</translation>
    </message>
    <message>
        <source>14. Hidden Triples</source>
        <translation>14. Terne nascoste</translation>
    </message>
    <message>
        <source>15. Hidden Quads</source>
        <translation>15. Quaterne nascoste</translation>
    </message>
</context>
<context>
    <name>PrintingInfoClass</name>
    <message>
        <source>Printing Info</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>What to print?</source>
        <translation>Cosa stampare?</translation>
    </message>
    <message>
        <source>Current game</source>
        <translation>La partita corrente</translation>
    </message>
    <message>
        <source>Generate and print a new game</source>
        <translation>Crea e stampa una nuova partita</translation>
    </message>
    <message>
        <source>Generate and print two games on the same page</source>
        <translation>Crea e stampa due partite per pagina</translation>
    </message>
    <message>
        <source>Generate and print four games on the same page</source>
        <translation>Crea e stampa quattro partite per pagina</translation>
    </message>
    <message>
        <source>How many times to repeat above operation?</source>
        <translation>Quante volte ripetere l’operazione?</translation>
    </message>
    <message>
        <source>Repeat count:</source>
        <translation>Ripetizioni:</translation>
    </message>
    <message>
        <source>Level for generated games:</source>
        <translation>Livello delle partite:</translation>
    </message>
    <message>
        <source>Export as PDF instead of printing</source>
        <translation>Esporta in PDF invece di stampare</translation>
    </message>
    <message>
        <source>Show print preview</source>
        <translation>Mostra l’anteprima</translation>
    </message>
    <message>
        <source>High Resolution (best quality)</source>
        <translation>Alta risoluzione (qualità migliore)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Risolto</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Molto facile</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Facile</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Difficile</translation>
    </message>
</context>
<context>
    <name>PuzzleClipboard</name>
    <message>
        <source>The clipboard holds no puzzle.
A puzzle is 81 cells: a digit for a given, 0 or . for an empty cell.</source>
        <translation>Gli appunti non contengono uno schema.
Uno schema ha 81 caselle: una cifra per ogni numero dato, 0 o . per una casella vuota.</translation>
    </message>
    <message>
        <source>This puzzle cannot be played:
a row, column or square holds a digit twice.</source>
        <translation>Questo schema non si può giocare:
una riga, colonna o riquadro contiene due volte la stessa cifra.</translation>
    </message>
    <message>
        <source>This puzzle has no solution.</source>
        <translation>Questo schema non ha soluzione.</translation>
    </message>
    <message>
        <source>This puzzle has more than one solution.</source>
        <translation>Questo schema ha più di una soluzione.</translation>
    </message>
    <message>
        <source>Puzzle pasted.</source>
        <translation>Schema incollato.</translation>
    </message>
    <message>
        <source>Puzzle copied.</source>
        <translation>Schema copiato.</translation>
    </message>
</context>
<context>
    <name>SudokuWindow</name>
    <message>
        <source>difficulty: none</source>
        <translation>livello: nessuno</translation>
    </message>
    <message>
        <source>difficulty: Very Easy</source>
        <translation>livello: Molto facile</translation>
    </message>
    <message>
        <source>difficulty: Easy</source>
        <translation>livello: Facile</translation>
    </message>
    <message>
        <source>difficulty: Medium</source>
        <translation>livello: Medio</translation>
    </message>
    <message>
        <source>difficulty: Hard</source>
        <translation>livello: Difficile</translation>
    </message>
    <message>
        <source>difficulty: user edit</source>
        <translation>livello: personale</translation>
    </message>
    <message>
        <source>No more moves can be done.</source>
        <translation>Non sono possibili altre mosse.</translation>
    </message>
    <message>
        <source>Cell %1 has no solution</source>
        <translation>La casella %1 non ha soluzione</translation>
    </message>
    <message>
        <source>This is not a valid .sud file</source>
        <translation>Questo non è un file .sud valido</translation>
    </message>
    <message>
        <source>Current game will be lost.
Continue?</source>
        <translation>La partita corrente andrà persa.
Continuare?</translation>
    </message>
    <message>
        <source>Failed to generate a valid game.</source>
        <translation>Impossibile creare una partita valida.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Complimenti!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Sudoku files (*.sud)</source>
        <translation>File Sudoku (*.sud)</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <source>Portable document files (*.pdf)</source>
        <translation>Documenti PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Failed to load game</source>
        <translation>Impossibile caricare la partita</translation>
    </message>
    <message>
        <source>Failed to save game</source>
        <translation>Impossibile salvare la partita</translation>
    </message>
    <message>
        <source>Print Document</source>
        <translation>Stampa documento</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <translation>Stampa non riuscita.</translation>
    </message>
    <message>
        <source>Loaded file version is incompatible
(expected version: %1 actual version: %2)</source>
        <translation>La versione del file caricato non è compatibile
(versione prevista: %1, versione effettiva: %2)</translation>
    </message>
    <message>
        <source>difficulty: Expert</source>
        <translation>livello: Esperto</translation>
    </message>
</context>
<context>
    <name>SudokuWindowClass</name>
    <message>
        <source>Start a new game</source>
        <translation>Inizia una partita</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Partita</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Nuova partita</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Toolbar Items</source>
        <translation>Elementi della barra</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Barra principale</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Risolto</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Completed Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nuova partita risolta&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a new game fully resolved</source>
        <translation>Crea una partita già risolta</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Molto facile</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Very Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nuova partita molto facile&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a very easy game</source>
        <translation>Crea una partita molto facile</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Facile</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nuova partita facile&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a easy game</source>
        <translation>Crea una partita facile</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Medium Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nuova partita media&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a medium game</source>
        <translation>Crea una partita di media difficoltà</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Difficile</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Hard Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nuova partita difficile&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a hard game</source>
        <translation>Crea una partita difficile</translation>
    </message>
    <message>
        <source>User Edit</source>
        <translation>Schema personale</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>&amp;Apri partita...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Open game from disk&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Apri una partita salvata&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open Existing Game</source>
        <translation>Apri una partita esistente</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>&amp;Save Game...</source>
        <translation>&amp;Salva partita...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Save Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Salva partita&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Save current game</source>
        <translation>Salva la partita corrente</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>S&amp;tampa...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Show Print Options&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Opzioni di stampa&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Show print option dialog</source>
        <translation>Mostra le opzioni di stampa</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Stampa...</translation>
    </message>
    <message>
        <source>&amp;Make Move</source>
        <translation>&amp;Fai una mossa</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Make a move for me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Fai una mossa per me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Make Move</source>
        <translation>Fai una mossa</translation>
    </message>
    <message>
        <source>&amp;Retract Move</source>
        <translation>Annulla &amp;mossa</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Retract Move&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Annulla mossa&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Retract Move</source>
        <translation>Annulla mossa</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>Esci dal programma</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku for one, made with care&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu versione 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku per uno, fatto con cura&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Pencil Marks</source>
        <translation>Candidati</translation>
    </message>
    <message>
        <source>Pencil Marks Options...</source>
        <translation>Opzioni dei candidati...</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra degli strumenti</translation>
    </message>
    <message>
        <source>Statusbar</source>
        <translation>Barra di stato</translation>
    </message>
    <message>
        <source>New Game Icons</source>
        <translation>Icone di nuova partita</translation>
    </message>
    <message>
        <source>Open &amp;&amp; Save</source>
        <translation>Apri &amp;&amp; salva</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Back &amp; Forward</source>
        <translation>Indietro &amp; avanti</translation>
    </message>
    <message>
        <source>&amp;Copy Puzzle</source>
        <translation>&amp;Copia schema</translation>
    </message>
    <message>
        <source>Copy the board as 81 characters</source>
        <translation>Copia la griglia come 81 caratteri</translation>
    </message>
    <message>
        <source>P&amp;aste Puzzle</source>
        <translation>&amp;Incolla schema</translation>
    </message>
    <message>
        <source>Play the puzzle on the clipboard</source>
        <translation>Gioca lo schema presente negli appunti</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>Su&amp;ggerimento</translation>
    </message>
    <message>
        <source>Show the next step; press again to carry it out</source>
        <translation>Mostra il passo successivo; premi di nuovo per applicarlo</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>%1; %2 refused</source>
        <extracomment>%1 is a cell&apos;s name or its caret mode, %2 the digit the game refused there</extracomment>
        <translation>%1; %2 rifiutato</translation>
    </message>
    <message>
        <source>Sudoku board</source>
        <translation>Griglia del Sudoku</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3, given</source>
        <extracomment>%3 is the cell&apos;s digit, a given of the puzzle</extracomment>
        <translation>Riga %1, colonna %2: %3, dato</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <extracomment>%3 is the digit the player (or Make Move) placed</extracomment>
        <translation>Riga %1, colonna %2: %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty, candidates %3</source>
        <extracomment>%3 lists the digits still possible in the cell, such as &quot;2 4 9&quot;</extracomment>
        <translation>Riga %1, colonna %2: vuota, candidati %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty</source>
        <translation>Riga %1, colonna %2: vuota</translation>
    </message>
    <message>
        <source>Caret: value entry</source>
        <translation>Cursore: inserimento cifre</translation>
    </message>
    <message>
        <source>Caret: pencil marks</source>
        <translation>Cursore: candidati</translation>
    </message>
</context>
</TS>
