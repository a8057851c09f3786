<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Sudoku Vantu</source>
        <translation>Über Sudoku Vantu</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Credits:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Application Author: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Icons Author: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Application homepage: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Mitwirkende:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Autoren des Programms: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Autor der Symbole: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Webseite des Programms: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Die Entwickler von Sudoku Vantu. Alle Rechte vorbehalten.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>Announcer</name>
    <message>
        <source>candidate %1 back</source>
        <translation>Kandidat %1 wieder da</translation>
    </message>
    <message>
        <source>candidate %1 removed</source>
        <translation>Kandidat %1 entfernt</translation>
    </message>
    <message>
        <source>The board is complete</source>
        <translation>Das Spielfeld ist vollständig</translation>
    </message>
    <message>
        <source>%1 refused: the board would have no solution</source>
        <translation>%1 abgelehnt: das Spielfeld hätte keine Lösung</translation>
    </message>
    <message>
        <source>%1 refused: not this cell&apos;s digit</source>
        <translation>%1 abgelehnt: nicht die Ziffer dieses Felds</translation>
    </message>
    <message>
        <source>%1 refused: row %2 already has %1 at column %3</source>
        <translation>%1 abgelehnt: Zeile %2 hat schon %1 in Spalte %3</translation>
    </message>
    <message>
        <source>%1 refused: column %2 already has %1 at row %3</source>
        <translation>%1 abgelehnt: Spalte %2 hat schon %1 in Zeile %3</translation>
    </message>
    <message>
        <source>%1 refused: box %2 already has %1 at row %3, column %4</source>
        <extracomment>%2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands</extracomment>
        <translation>%1 abgelehnt: Block %2 hat schon %1 in Zeile %3, Spalte %4</translation>
    </message>
    <message>
        <source>candidate %1 refused</source>
        <translation>Kandidat %1 abgelehnt</translation>
    </message>
    <message>
        <source>Game opened, %1, %2 empty cells</source>
        <extracomment>%1 is the level label (&quot;difficulty: Medium&quot;), %2 how many cells are empty</extracomment>
        <translation>Spiel geöffnet, %1, %2 leere Felder</translation>
    </message>
    <message>
        <source>New game, %1, %2 empty cells</source>
        <translation>Neues Spiel, %1, %2 leere Felder</translation>
    </message>
    <message>
        <source>Keys: R, C and B read the caret&apos;s row, column and box, N what is left to place</source>
        <translation>Tasten: R, C und B lesen Zeile, Spalte und Block des Cursors, N was noch zu setzen ist</translation>
    </message>
    <message>
        <source>%1 of digit %2</source>
        <extracomment>%1 how many of the digit %2 are still to be placed</extracomment>
        <translation>%1-mal die %2</translation>
    </message>
    <message>
        <source>Every digit is placed</source>
        <translation>Alle Ziffern sind gesetzt</translation>
    </message>
    <message>
        <source>Still to place: %1</source>
        <translation>Noch zu setzen: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <extracomment>%2 lists the nine cells in order, such as &quot;7, empty, 4&quot;</extracomment>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Column %1: %2</source>
        <translation>Spalte %1: %2</translation>
    </message>
    <message>
        <source>Box %1: %2</source>
        <translation>Block %1: %2</translation>
    </message>
</context>
<context>
    <name>HintController</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>Block %1</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>Spalten %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>Zeilen %1</translation>
    </message>
    <message>
        <source>row %1, columns %2</source>
        <translation>Zeile %1, Spalten %2</translation>
    </message>
    <message>
        <source>column %1, rows %2</source>
        <translation>Spalte %1, Zeilen %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>; </translation>
    </message>
    <message>
        <source>Last empty cell</source>
        <translation>Letztes leeres Feld</translation>
    </message>
    <message>
        <source>Hidden single</source>
        <translation>Versteckter Einer</translation>
    </message>
    <message>
        <source>Naked single</source>
        <translation>Nackter Einer</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einer</translation>
    </message>
    <message>
        <source>Locked candidates</source>
        <translation>Gesperrte Kandidaten</translation>
    </message>
    <message>
        <source>Naked triple</source>
        <translation>Nackter Drilling</translation>
    </message>
    <message>
        <source>Naked pair</source>
        <translation>Nacktes Paar</translation>
    </message>
    <message>
        <source>Naked quad</source>
        <translation>Nackter Vierling</translation>
    </message>
    <message>
        <source>Hidden pair</source>
        <translation>Verstecktes Paar</translation>
    </message>
    <message>
        <source>Hidden triple</source>
        <translation>Versteckter Drilling</translation>
    </message>
    <message>
        <source>Hidden quad</source>
        <translation>Versteckter Vierling</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>Feld %1 enthält %2</translation>
    </message>
    <message>
        <source>%1 in %2 lies in %3</source>
        <translation>die %1 in %2 liegt nur in %3</translation>
    </message>
    <message>
        <source>in %1, %2 can only go in %3</source>
        <translation>in %1 können %2 nur in %3 stehen</translation>
    </message>
    <message>
        <source>in %1, %2 can only hold %3</source>
        <translation>in %1 können %2 nur %3 enthalten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is the only empty cell in %2, so it holds %3</source>
        <translation>Feld %1 ist das einzige leere Feld in %2, also steht dort %3</translation>
    </message>
    <message>
        <source>in %1, only %2 can hold %3</source>
        <translation>in %1 kann nur Feld %2 die %3 enthalten</translation>
    </message>
    <message>
        <source>%1 can only hold %2</source>
        <translation>Feld %1 kann nur %2 enthalten</translation>
    </message>
    <message>
        <source>so these cells keep only %1</source>
        <translation>also behalten diese Felder nur %1</translation>
    </message>
    <message>
        <source>so %1 is removed from %2</source>
        <translation>also wird %1 aus %2 entfernt</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>so %1 is the only place left for %2 in %3</source>
        <translation>also ist Feld %1 der einzige Platz für die %2 in %3</translation>
    </message>
    <message>
        <source>so %1 can only hold %2</source>
        <translation>also kann Feld %1 nur %2 enthalten</translation>
    </message>
    <message>
        <source>The board is complete: there is nothing left to hint.</source>
        <translation>Das Spiel ist vollständig: Es gibt nichts mehr zu zeigen.</translation>
    </message>
    <message>
        <source>The board is empty: enter a puzzle first, or use Make Move.</source>
        <translation>Das Spielfeld ist leer: Geben Sie zuerst ein Rätsel ein oder nutzen Sie „Zug ausführen“.</translation>
    </message>
    <message>
        <source>No rule finds a next step here. Make Move can place a value.</source>
        <translation>Hier findet keine Regel einen nächsten Schritt. „Zug ausführen“ kann einen Wert setzen.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 holds %2 twice.</source>
        <translation>Das Spielfeld widerspricht sich: %1 enthält die %2 zweimal.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no place left for %2.</source>
        <translation>Das Spielfeld widerspricht sich: %1 hat keinen Platz mehr für die %2.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no candidate left.</source>
        <translation>Das Spielfeld widerspricht sich: Feld %1 hat keinen Kandidaten mehr.</translation>
    </message>
    <message>
        <source>The hint could not be carried out.</source>
        <translation>Der Tipp konnte nicht ausgeführt werden.</translation>
    </message>
</context>
<context>
    <name>KeptGame</name>
    <message>
        <source>The last game could not be read and was set aside.</source>
        <translation>Das letzte Spiel war unlesbar und wurde beiseitegelegt.</translation>
    </message>
    <message>
        <source>The last game could not be read.</source>
        <translation>Das letzte Spiel war unlesbar.</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved for the next start.</source>
        <translation>Das laufende Spiel kann nicht für den nächsten Start gesichert werden.</translation>
    </message>
</context>
<context>
    <name>PencilMarksOptions</name>
    <message>
        <source>Pencil Marks Options</source>
        <translation>Notizen-Optionen</translation>
    </message>
    <message>
        <source>Autoresolve pencilmarks using following methods:</source>
        <translation>Notizen mit diesen Regeln automatisch auflösen:</translation>
    </message>
    <message>
        <source>Available:</source>
        <translation>Verfügbar:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <translation>Ausgewählt:</translation>
    </message>
    <message>
        <source>00. Singles Row Only</source>
        <translation>00. Einer, nur Zeilen</translation>
    </message>
    <message>
        <source>01. Singles Col Only</source>
        <translation>01. Einer, nur Spalten</translation>
    </message>
    <message>
        <source>02. Singles Square Only</source>
        <translation>02. Einer, nur Blöcke</translation>
    </message>
    <message>
        <source>03. Singles Row + Col Only</source>
        <translation>03. Einer, nur Zeilen + Spalten</translation>
    </message>
    <message>
        <source>04. Singles</source>
        <translation>04. Einer</translation>
    </message>
    <message>
        <source>05. Doubles</source>
        <translation>05. Paare</translation>
    </message>
    <message>
        <source>06. Triples</source>
        <translation>06. Drillinge</translation>
    </message>
    <message>
        <source>07. Quads</source>
        <translation>07. Vierlinge</translation>
    </message>
    <message>
        <source>08. Transitive Doubles</source>
        <translation>08. Transitive Paare</translation>
    </message>
    <message>
        <source>09. Locked by Rows</source>
        <translation>09. Gesperrt durch Zeilen</translation>
    </message>
    <message>
        <source>10. Locked by Cols</source>
        <translation>10. Gesperrt durch Spalten</translation>
    </message>
    <message>
        <source>11. Locked by Squares</source>
        <translation>11. Gesperrt durch Blöcke</translation>
    </message>
    <message>
        <source>12. Hidden Singles</source>
        <translation>12. Versteckte Einer</translation>
    </message>
    <message>
        <source>13. Hidden Doubles</source>
        <translation>13. Versteckte Paare</translation>
    </message>
    <message>
        <source>14. Hidden Triples</source>
        <translation>14. Versteckte Drillinge</translation>
    </message>
    <message>
        <source>15. Hidden Quads</source>
        <translation>15. Versteckte Vierlinge</translation>
    </message>
</context>
<context>
    <name>PrintingInfoClass</name>
    <message>
        <source>Printing Info</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>What to print?</source>
        <translation>Was soll gedruckt werden?</translation>
    </message>
    <message>
        <source>Current game</source>
        <translation>Aktuelles Spiel</translation>
    </message>
    <message>
        <source>Generate and print a new game</source>
        <translation>Ein neues Spiel erzeugen und drucken</translation>
    </message>
    <message>
        <source>Generate and print two games on the same page</source>
        <translation>Zwei neue Spiele auf einer Seite drucken</translation>
    </message>
    <message>
        <source>Generate and print four games on the same page</source>
        <translation>Vier neue Spiele auf einer Seite drucken</translation>
    </message>
    <message>
        <source>How many times to repeat above operation?</source>
        <translation>Wie oft soll das wiederholt werden?</translation>
    </message>
    <message>
        <source>Repeat count:</source>
        <translation>Anzahl:</translation>
    </message>
    <message>
        <source>Level for generated games:</source>
        <translation>Stufe der neuen Spiele:</translation>
    </message>
    <message>
        <source>Export as PDF instead of printing</source>
        <translation>Als PDF speichern statt drucken</translation>
    </message>
    <message>
        <source>Show print preview</source>
        <translation>Druckvorschau zeigen</translation>
    </message>
    <message>
        <source>High Resolution (best quality)</source>
        <translation>Hohe Auflösung (beste Qualität)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Gelöst</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Sehr leicht</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Schwer</translation>
    </message>
</context>
<context>
    <name>PuzzleClipboard</name>
    <message>
        <source>The clipboard holds no puzzle.
A puzzle is 81 cells: a digit for a given, 0 or . for an empty cell.</source>
        <translation>Die Zwischenablage enthält kein Rätsel.
Ein Rätsel hat 81 Felder: eine Ziffer für eine Vorgabe, 0 oder . für ein leeres Feld.</translation>
    </message>
    <message>
        <source>This puzzle cannot be played:
a row, column or square holds a digit twice.</source>
        <translation>Dieses Rätsel ist nicht spielbar:
eine Zeile, Spalte oder ein Block enthält eine Ziffer doppelt.</translation>
    </message>
    <message>
        <source>This puzzle has no solution.</source>
        <translation>Dieses Rätsel hat keine Lösung.</translation>
    </message>
    <message>
        <source>This puzzle has more than one solution.</source>
        <translation>Dieses Rätsel hat mehr als eine Lösung.</translation>
    </message>
    <message>
        <source>Puzzle pasted.</source>
        <translation>Rätsel eingefügt.</translation>
    </message>
    <message>
        <source>Puzzle copied.</source>
        <translation>Rätsel kopiert.</translation>
    </message>
</context>
<context>
    <name>SudokuWindow</name>
    <message>
        <source>difficulty: none</source>
        <translation>Stufe: keine</translation>
    </message>
    <message>
        <source>difficulty: Very Easy</source>
        <translation>Stufe: Sehr leicht</translation>
    </message>
    <message>
        <source>difficulty: Easy</source>
        <translation>Stufe: Leicht</translation>
    </message>
    <message>
        <source>difficulty: Medium</source>
        <translation>Stufe: Mittel</translation>
    </message>
    <message>
        <source>difficulty: Hard</source>
        <translation>Stufe: Schwer</translation>
    </message>
    <message>
        <source>difficulty: user edit</source>
        <translation>Stufe: eigenes</translation>
    </message>
    <message>
        <source>No more moves can be done.</source>
        <translation>Es ist kein Zug mehr möglich.</translation>
    </message>
    <message>
        <source>Cell %1 has no solution</source>
        <translation>Feld %1 hat keine Lösung</translation>
    </message>
    <message>
        <source>This is not a valid .sud file</source>
        <translation>Dies ist keine gültige .sud-Datei</translation>
    </message>
    <message>
        <source>Current game will be lost.
Continue?</source>
        <translation>Das aktuelle Spiel geht verloren.
Fortfahren?</translation>
    </message>
    <message>
        <source>Failed to generate a valid game.</source>
        <translation>Es konnte kein gültiges Spiel erzeugt werden.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Herzlichen Glückwunsch!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Sudoku files (*.sud)</source>
        <translation>Sudoku-Dateien (*.sud)</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Portable document files (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Failed to load game</source>
        <translation>Das Spiel konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Failed to save game</source>
        <translation>Das Spiel konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Print Document</source>
        <translation>Dokument drucken</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <translation>Drucken fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Loaded file version is incompatible
(expected version: %1 actual version: %2)</source>
        <translation>Die Version der geladenen Datei ist nicht kompatibel
(erwartete Version: %1, tatsächliche Version: %2)</translation>
    </message>
    <message>
        <source>difficulty: Expert</source>
        <translation>Stufe: Experte</translation>
    </message>
</context>
<context>
    <name>SudokuWindowClass</name>
    <message>
        <source>Start a new game</source>
        <translation>Neues Spiel starten</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Spiel</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Neues Spiel</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Toolbar Items</source>
        <translation>Werkzeugleisten-Elemente</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Gelöst</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Completed Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Neues gelöstes Spiel&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a new game fully resolved</source>
        <translation>Ein vollständig gelöstes Spiel erzeugen</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Sehr leicht</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Very Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Neues sehr leichtes Spiel&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a very easy game</source>
        <translation>Ein sehr leichtes Spiel erzeugen</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Neues leichtes Spiel&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a easy game</source>
        <translation>Ein leichtes Spiel erzeugen</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Medium Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Neues mittleres Spiel&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a medium game</source>
        <translation>Ein mittelschweres Spiel erzeugen</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Schwer</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Hard Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Neues schweres Spiel&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a hard game</source>
        <translation>Ein schweres Spiel erzeugen</translation>
    </message>
    <message>
        <source>User Edit</source>
        <translation>Eigenes Rätsel</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>Spiel ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Open game from disk&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Gespeichertes Spiel öffnen&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open Existing Game</source>
        <translation>Vorhandenes Spiel öffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Save Game...</source>
        <translation>Spiel &amp;speichern...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Save Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Spiel speichern&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Save current game</source>
        <translation>Aktuelles Spiel speichern</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Show Print Options&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Druckoptionen zeigen&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Show print option dialog</source>
        <translation>Den Dialog für die Druckoptionen zeigen</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>&amp;Make Move</source>
        <translation>Zug &amp;ausführen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Make a move for me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Einen Zug für mich ausführen&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Make Move</source>
        <translation>Zug ausführen</translation>
    </message>
    <message>
        <source>&amp;Retract Move</source>
        <translation>Zug &amp;zurücknehmen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Retract Move&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Zug zurücknehmen&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Retract Move</source>
        <translation>Zug zurücknehmen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku for one, made with care&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku für einen, mit Sorgfalt gemacht&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Pencil Marks</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Pencil Marks Options...</source>
        <translation>Notizen-Optionen...</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Statusbar</source>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>New Game Icons</source>
        <translation>Symbole für neue Spiele</translation>
    </message>
    <message>
        <source>Open &amp;&amp; Save</source>
        <translation>Öffnen &amp;&amp; Speichern</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Back &amp; Forward</source>
        <translation>Zurück &amp; Vor</translation>
    </message>
    <message>
        <source>&amp;Copy Puzzle</source>
        <translation>Rätsel &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy the board as 81 characters</source>
        <translation>Das Spielfeld als 81 Zeichen kopieren</translation>
    </message>
    <message>
        <source>P&amp;aste Puzzle</source>
        <translation>Rätsel e&amp;infügen</translation>
    </message>
    <message>
        <source>Play the puzzle on the clipboard</source>
        <translation>Das Rätsel aus der Zwischenablage spielen</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Tipp</translation>
    </message>
    <message>
        <source>Show the next step; press again to carry it out</source>
        <translation>Den nächsten Schritt zeigen; erneut drücken, um ihn auszuführen</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>%1; %2 refused</source>
        <extracomment>%1 is a cell&apos;s name or its caret mode, %2 the digit the game refused there</extracomment>
        <translation>%1; %2 abgelehnt</translation>
    </message>
    <message>
        <source>Sudoku board</source>
        <translation>Sudoku-Spielfeld</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3, given</source>
        <extracomment>%3 is the cell&apos;s digit, a given of the puzzle</extracomment>
        <translation>Zeile %1, Spalte %2: %3, vorgegeben</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <extracomment>%3 is the digit the player (or Make Move) placed</extracomment>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty, candidates %3</source>
        <extracomment>%3 lists the digits still possible in the cell, such as &quot;2 4 9&quot;</extracomment>
        <translation>Zeile %1, Spalte %2: leer, Kandidaten %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty</source>
        <translation>Zeile %1, Spalte %2: leer</translation>
    </message>
    <message>
        <source>Caret: value entry</source>
        <translation>Cursor: Zifferneingabe</translation>
    </message>
    <message>
        <source>Caret: pencil marks</source>
        <translation>Cursor: Notizen</translation>
    </message>
</context>
</TS>
