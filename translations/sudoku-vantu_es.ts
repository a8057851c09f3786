<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Sudoku Vantu</source>
        <translation>Acerca de Sudoku Vantu</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Versión:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Credits:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Application Author: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Icons Author: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Application homepage: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Créditos:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Autores del programa: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Autor de los iconos: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Página del programa: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Los desarrolladores de Sudoku Vantu. Todos los derechos reservados.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>Announcer</name>
    <message>
        <source>candidate %1 back</source>
        <translation>candidato %1 restaurado</translation>
    </message>
    <message>
        <source>candidate %1 removed</source>
        <translation>candidato %1 quitado</translation>
    </message>
    <message>
        <source>The board is complete</source>
        <translation>El tablero está completo</translation>
    </message>
    <message>
        <source>%1 refused: the board would have no solution</source>
        <translation>%1 rechazado: el tablero quedaría sin solución</translation>
    </message>
    <message>
        <source>%1 refused: not this cell&apos;s digit</source>
        <translation>%1 rechazado: no es el número de esta casilla</translation>
    </message>
    <message>
        <source>%1 refused: row %2 already has %1 at column %3</source>
        <translation>%1 rechazado: la fila %2 ya tiene %1 en la columna %3</translation>
    </message>
    <message>
        <source>%1 refused: column %2 already has %1 at row %3</source>
        <translation>%1 rechazado: la columna %2 ya tiene %1 en la fila %3</translation>
    </message>
    <message>
        <source>%1 refused: box %2 already has %1 at row %3, column %4</source>
        <extracomment>%2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands</extracomment>
        <translation>%1 rechazado: el bloque %2 ya tiene %1 en la fila %3, columna %4</translation>
    </message>
    <message>
        <source>candidate %1 refused</source>
        <translation>candidato %1 rechazado</translation>
    </message>
    <message>
        <source>Game opened, %1, %2 empty cells</source>
        <extracomment>%1 is the level label (&quot;difficulty: Medium&quot;), %2 how many cells are empty</extracomment>
        <translation>Partida abierta, %1, %2 casillas vacías</translation>
    </message>
    <message>
        <source>New game, %1, %2 empty cells</source>
        <translation>Nueva partida, %1, %2 casillas vacías</translation>
    </message>
    <message>
        <source>Keys: R, C and B read the caret&apos;s row, column and box, N what is left to place</source>
        <translation>Teclas: R, C y B leen la fila, la columna y el bloque del cursor, N lo que falta por colocar</translation>
    </message>
    <message>
        <source>%1 of digit %2</source>
        <extracomment>%1 how many of the digit %2 are still to be placed</extracomment>
        <translation>%1 veces el %2</translation>
    </message>
    <message>
        <source>Every digit is placed</source>
        <translation>Todos los números están colocados</translation>
    </message>
    <message>
        <source>Still to place: %1</source>
        <translation>Falta por colocar: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacía</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <extracomment>%2 lists the nine cells in order, such as &quot;7, empty, 4&quot;</extracomment>
        <translation>Fila %1: %2</translation>
    </message>
    <message>
        <source>Column %1: %2</source>
        <translation>Columna %1: %2</translation>
    </message>
    <message>
        <source>Box %1: %2</source>
        <translation>Bloque %1: %2</translation>
    </message>
</context>
<context>
    <name>HintController</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>la fila %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>la columna %1</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>la caja %1</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>fila %1, columna %2</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>columnas %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>filas %1</translation>
    </message>
    <message>
        <source>row %1, columns %2</source>
        <translation>fila %1, columnas %2</translation>
    </message>
    <message>
        <source>column %1, rows %2</source>
        <translation>columna %1, filas %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>; </translation>
    </message>
    <message>
        <source>Last empty cell</source>
        <translation>Última casilla vacía</translation>
    </message>
    <message>
        <source>Hidden single</source>
        <translation>Único oculto</translation>
    </message>
    <message>
        <source>Naked single</source>
        <translation>Único desnudo</translation>
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
        <translation>Trío desnudo</translation>
    </message>
    <message>
        <source>Naked pair</source>
        <translation>Pareja desnuda</translation>
    </message>
    <message>
        <source>Naked quad</source>
        <translation>Cuarteto desnudo</translation>
    </message>
    <message>
        <source>Hidden pair</source>
        <translation>Pareja oculta</translation>
    </message>
    <message>
        <source>Hidden triple</source>
        <translation>Trío oculto</translation>
    </message>
    <message>
        <source>Hidden quad</source>
        <translation>Cuarteto oculto</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>la casilla %1 contiene %2</translation>
    </message>
    <message>
        <source>%1 in %2 lies in %3</source>
        <translation>en %2, el %1 solo está en %3</translation>
    </message>
    <message>
        <source>in %1, %2 can only go in %3</source>
        <translation>en %1, %2 solo pueden ir en las casillas %3</translation>
    </message>
    <message>
        <source>in %1, %2 can only hold %3</source>
        <translation>en %1, las casillas %2 solo pueden contener %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is the only empty cell in %2, so it holds %3</source>
        <translation>la casilla %1 es la única vacía en %2, así que contiene %3</translation>
    </message>
    <message>
        <source>in %1, only %2 can hold %3</source>
        <translation>en %1, solo la casilla %2 puede contener %3</translation>
    </message>
    <message>
        <source>%1 can only hold %2</source>
        <translation>la casilla %1 solo puede contener %2</translation>
    </message>
    <message>
        <source>so these cells keep only %1</source>
        <translation>así que esas casillas solo conservan %1</translation>
    </message>
    <message>
        <source>so %1 is removed from %2</source>
        <translation>así que %1 se elimina de las casillas %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>so %1 is the only place left for %2 in %3</source>
        <translation>así que la casilla %1 es el único lugar que queda para el %2 en %3</translation>
    </message>
    <message>
        <source>so %1 can only hold %2</source>
        <translation>así que la casilla %1 solo puede contener %2</translation>
    </message>
    <message>
        <source>The board is complete: there is nothing left to hint.</source>
        <translation>El tablero está completo: no queda nada por indicar.</translation>
    </message>
    <message>
        <source>The board is empty: enter a puzzle first, or use Make Move.</source>
        <translation>El tablero está vacío: introduzca primero un sudoku o use Hacer movimiento.</translation>
    </message>
    <message>
        <source>No rule finds a next step here. Make Move can place a value.</source>
        <translation>Ninguna regla encuentra aquí un paso siguiente. Hacer movimiento puede colocar un valor.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 holds %2 twice.</source>
        <translation>El tablero se contradice: %1 contiene el %2 dos veces.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no place left for %2.</source>
        <translation>El tablero se contradice: %1 no tiene sitio para el %2.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no candidate left.</source>
        <translation>El tablero se contradice: la casilla %1 no tiene ningún candidato.</translation>
    </message>
    <message>
        <source>The hint could not be carried out.</source>
        <translation>No se pudo aplicar la pista.</translation>
    </message>
</context>
<context>
    <name>KeptGame</name>
    <message>
        <source>The last game could not be read and was set aside.</source>
        <translation>La última partida no se pudo leer y se apartó.</translation>
    </message>
    <message>
        <source>The last game could not be read.</source>
        <translation>La última partida no se pudo leer.</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved for the next start.</source>
        <translation>La partida en curso no se puede guardar para el próximo inicio.</translation>
    </message>
</context>
<context>
    <name>PencilMarksOptions</name>
    <message>
        <source>Pencil Marks Options</source>
        <translation>Opciones de anotaciones</translation>
    </message>
    <message>
        <source>Autoresolve pencilmarks using following methods:</source>
        <translation>Resolver las anotaciones con estos métodos:</translation>
    </message>
    <message>
        <source>Available:</source>
        <translation>Disponibles:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <translation>Elegidos:</translation>
    </message>
    <message>
        <source>00. Singles Row Only</source>
        <translation>00. Únicos, solo filas</translation>
    </message>
    <message>
        <source>01. Singles Col Only</source>
        <translation>01. Únicos, solo columnas</translation>
    </message>
    <message>
        <source>02. Singles Square Only</source>
        <translation>02. Únicos, solo cajas</translation>
    </message>
    <message>
        <source>03. Singles Row + Col Only</source>
        <translation>03. Únicos, solo filas + columnas</translation>
    </message>
    <message>
        <source>04. Singles</source>
        <translation>04. Únicos</translation>
    </message>
    <message>
        <source>05. Doubles</source>
        <translation>05. Parejas</translation>
    </message>
    <message>
        <source>06. Triples</source>
        <translation>06. Tríos</translation>
    </message>
    <message>
        <source>07. Quads</source>
        <translation>07. Cuartetos</translation>
    </message>
    <message>
        <source>08. Transitive Doubles</source>
        <translation>08. Parejas transitivas</translation>
    </message>
    <message>
        <source>09. Locked by Rows</source>
        <translation>09. Bloqueados por filas</translation>
    </message>
    <message>
        <source>10. Locked by Cols</source>
        <translation>10. Bloqueados por columnas</translation>
    </message>
    <message>
        <source>11. Locked by Squares</source>
        <translation>11. Bloqueados por cajas</translation>
    </message>
    <message>
        <source>12. Hidden Singles</source>
        <translation>12. Únicos ocultos</translation>
    </message>
    <message>
        <source>13. Hidden Doubles</source>
        <translation>13. Parejas ocultas</translation>
    </message>
    <message>
        <source>14. Hidden Triples</source>
        <translation>14. Tríos ocultos</translation>
    </message>
    <message>
        <source>15. Hidden Quads</source>
        <translation>15. Cuartetos ocultos</translation>
    </message>
</context>
<context>
    <name>PrintingInfoClass</name>
    <message>
        <source>Printing Info</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>What to print?</source>
        <translation>¿Qué desea imprimir?</translation>
    </message>
    <message>
        <source>Current game</source>
        <translation>La partida actual</translation>
    </message>
    <message>
        <source>Generate and print a new game</source>
        <translation>Crear e imprimir una partida nueva</translation>
    </message>
    <message>
        <source>Generate and print two games on the same page</source>
        <translation>Crear e imprimir dos partidas por página</translation>
    </message>
    <message>
        <source>Generate and print four games on the same page</source>
        <translation>Crear e imprimir cuatro partidas por página</translation>
    </message>
    <message>
        <source>How many times to repeat above operation?</source>
        <translation>¿Cuántas veces repetir la operación?</translation>
    </message>
    <message>
        <source>Repeat count:</source>
        <translation>Repeticiones:</translation>
    </message>
    <message>
        <source>Level for generated games:</source>
        <translation>Nivel de las partidas:</translation>
    </message>
    <message>
        <source>Export as PDF instead of printing</source>
        <translation>Exportar a PDF en vez de imprimir</translation>
    </message>
    <message>
        <source>Show print preview</source>
        <translation>Mostrar vista previa</translation>
    </message>
    <message>
        <source>High Resolution (best quality)</source>
        <translation>Alta resolución (mejor calidad)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Resuelto</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Muy fácil</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Fácil</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
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
        <translation>El portapapeles no contiene ningún sudoku.
Un sudoku tiene 81 casillas: una cifra para cada pista, 0 o . para una casilla vacía.</translation>
    </message>
    <message>
        <source>This puzzle cannot be played:
a row, column or square holds a digit twice.</source>
        <translation>Este sudoku no se puede jugar:
una fila, columna o cuadro repite una cifra.</translation>
    </message>
    <message>
        <source>This puzzle has no solution.</source>
        <translation>Este sudoku no tiene solución.</translation>
    </message>
    <message>
        <source>This puzzle has more than one solution.</source>
        <translation>Este sudoku tiene más de una solución.</translation>
    </message>
    <message>
        <source>Puzzle pasted.</source>
        <translation>Sudoku pegado.</translation>
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
        <translation>dificultad: ninguna</translation>
    </message>
    <message>
        <source>difficulty: Very Easy</source>
        <translation>dificultad: Muy fácil</translation>
    </message>
    <message>
        <source>difficulty: Easy</source>
        <translation>dificultad: Fácil</translation>
    </message>
    <message>
        <source>difficulty: Medium</source>
        <translation>dificultad: Media</translation>
    </message>
    <message>
        <source>difficulty: Hard</source>
        <translation>dificultad: Difícil</translation>
    </message>
    <message>
        <source>difficulty: user edit</source>
        <translation>dificultad: propia</translation>
    </message>
    <message>
        <source>No more moves can be done.</source>
        <translation>No se pueden hacer más movimientos.</translation>
    </message>
    <message>
        <source>Cell %1 has no solution</source>
        <translation>La casilla %1 no tiene solución</translation>
    </message>
    <message>
        <source>This is not a valid .sud file</source>
        <translation>No es un archivo .sud válido</translation>
    </message>
    <message>
        <source>Current game will be lost.
Continue?</source>
        <translation>Se perderá la partida actual.
¿Continuar?</translation>
    </message>
    <message>
        <source>Failed to generate a valid game.</source>
        <translation>No se pudo crear una partida válida.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>¡Enhorabuena!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Sudoku files (*.sud)</source>
        <translation>Archivos de Sudoku (*.sud)</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Portable document files (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Failed to load game</source>
        <translation>No se pudo cargar la partida</translation>
    </message>
    <message>
        <source>Failed to save game</source>
        <translation>No se pudo guardar la partida</translation>
    </message>
    <message>
        <source>Print Document</source>
        <translation>Imprimir documento</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <translation>No se pudo imprimir.</translation>
    </message>
    <message>
        <source>Loaded file version is incompatible
(expected version: %1 actual version: %2)</source>
        <translation>La versión del archivo cargado no es compatible
(versión esperada: %1, versión real: %2)</translation>
    </message>
    <message>
        <source>difficulty: Expert</source>
        <translation>dificultad: Experto</translation>
    </message>
</context>
<context>
    <name>SudokuWindowClass</name>
    <message>
        <source>Start a new game</source>
        <translation>Empezar una partida</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Juego</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Nueva partida</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Toolbar Items</source>
        <translation>Elementos de la barra</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Barra principal</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Resuelto</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Completed Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nueva partida resuelta&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a new game fully resolved</source>
        <translation>Crear una partida completamente resuelta</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Muy fácil</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Very Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nueva partida muy fácil&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a very easy game</source>
        <translation>Crear una partida muy fácil</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Fácil</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nueva partida fácil&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a easy game</source>
        <translation>Crear una partida fácil</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Medium Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nueva partida media&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a medium game</source>
        <translation>Crear una partida de dificultad media</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Difícil</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Hard Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nueva partida difícil&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a hard game</source>
        <translation>Crear una partida difícil</translation>
    </message>
    <message>
        <source>User Edit</source>
        <translation>Tablero propio</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>&amp;Abrir partida...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Open game from disk&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Abrir una partida guardada&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open Existing Game</source>
        <translation>Abrir una partida existente</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Save Game...</source>
        <translation>&amp;Guardar partida...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Save Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Guardar partida&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Save current game</source>
        <translation>Guardar la partida actual</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Show Print Options&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Opciones de impresión&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Show print option dialog</source>
        <translation>Mostrar las opciones de impresión</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>&amp;Make Move</source>
        <translation>Hacer &amp;movimiento</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Make a move for me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Hacer un movimiento por mí&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Make Move</source>
        <translation>Hacer movimiento</translation>
    </message>
    <message>
        <source>&amp;Retract Move</source>
        <translation>&amp;Deshacer movimiento</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Retract Move&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Deshacer movimiento&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Retract Move</source>
        <translation>Deshacer movimiento</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku for one, made with care&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu versión 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku para uno, hecho con cariño&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Pencil Marks</source>
        <translation>Anotaciones</translation>
    </message>
    <message>
        <source>Pencil Marks Options...</source>
        <translation>Opciones de anotaciones...</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Statusbar</source>
        <translation>Barra de estado</translation>
    </message>
    <message>
        <source>New Game Icons</source>
        <translation>Iconos de partida nueva</translation>
    </message>
    <message>
        <source>Open &amp;&amp; Save</source>
        <translation>Abrir &amp;&amp; guardar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Back &amp; Forward</source>
        <translation>Atrás &amp; adelante</translation>
    </message>
    <message>
        <source>&amp;Copy Puzzle</source>
        <translation>&amp;Copiar sudoku</translation>
    </message>
    <message>
        <source>Copy the board as 81 characters</source>
        <translation>Copiar el tablero como 81 caracteres</translation>
    </message>
    <message>
        <source>P&amp;aste Puzzle</source>
        <translation>P&amp;egar sudoku</translation>
    </message>
    <message>
        <source>Play the puzzle on the clipboard</source>
        <translation>Jugar el sudoku del portapapeles</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Pista</translation>
    </message>
    <message>
        <source>Show the next step; press again to carry it out</source>
        <translation>Muestra el siguiente paso; púlselo de nuevo para aplicarlo</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>%1; %2 refused</source>
        <extracomment>%1 is a cell&apos;s name or its caret mode, %2 the digit the game refused there</extracomment>
        <translation>%1; %2 rechazado</translation>
    </message>
    <message>
        <source>Sudoku board</source>
        <translation>Tablero de sudoku</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3, given</source>
        <extracomment>%3 is the cell&apos;s digit, a given of the puzzle</extracomment>
        <translation>Fila %1, columna %2: %3, pista</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <extracomment>%3 is the digit the player (or Make Move) placed</extracomment>
        <translation>Fila %1, columna %2: %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty, candidates %3</source>
        <extracomment>%3 lists the digits still possible in the cell, such as &quot;2 4 9&quot;</extracomment>
        <translation>Fila %1, columna %2: vacía, candidatos %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty</source>
        <translation>Fila %1, columna %2: vacía</translation>
    </message>
    <message>
        <source>Caret: value entry</source>
        <translation>Cursor: introducir números</translation>
    </message>
    <message>
        <source>Caret: pencil marks</source>
        <translation>Cursor: anotaciones</translation>
    </message>
</context>
</TS>
