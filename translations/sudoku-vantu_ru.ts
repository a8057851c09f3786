<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Sudoku Vantu</source>
        <translation>О программе Sudoku Vantu</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Версия:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Credits:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Application Author: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Icons Author: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Application homepage: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Авторы:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Автор программы: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Автор значков: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Сайт программы: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. Все права защищены.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>Announcer</name>
    <message>
        <source>candidate %1 back</source>
        <translation>кандидат %1 возвращён</translation>
    </message>
    <message>
        <source>candidate %1 removed</source>
        <translation>кандидат %1 убран</translation>
    </message>
    <message>
        <source>The board is complete</source>
        <translation>Поле заполнено</translation>
    </message>
    <message>
        <source>%1 refused: the board would have no solution</source>
        <translation>%1 не принято: у поля не было бы решения</translation>
    </message>
    <message>
        <source>%1 refused: not this cell&apos;s digit</source>
        <translation>%1 не принято: это не цифра этой клетки</translation>
    </message>
    <message>
        <source>%1 refused: row %2 already has %1 at column %3</source>
        <translation>%1 не принято: в строке %2 уже есть %1 в столбце %3</translation>
    </message>
    <message>
        <source>%1 refused: column %2 already has %1 at row %3</source>
        <translation>%1 не принято: в столбце %2 уже есть %1 в строке %3</translation>
    </message>
    <message>
        <source>%1 refused: box %2 already has %1 at row %3, column %4</source>
        <extracomment>%2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands</extracomment>
        <translation>%1 не принято: в блоке %2 уже есть %1 в строке %3, столбце %4</translation>
    </message>
    <message>
        <source>candidate %1 refused</source>
        <translation>кандидат %1 не принят</translation>
    </message>
    <message>
        <source>Game opened, %1, %2 empty cells</source>
        <extracomment>%1 is the level label (&quot;difficulty: Medium&quot;), %2 how many cells are empty</extracomment>
        <translation>Игра открыта, %1, пустых клеток: %2</translation>
    </message>
    <message>
        <source>New game, %1, %2 empty cells</source>
        <translation>Новая игра, %1, пустых клеток: %2</translation>
    </message>
    <message>
        <source>Keys: R, C and B read the caret&apos;s row, column and box, N what is left to place</source>
        <translation>Клавиши: R, C и B читают строку, столбец и блок курсора, N — сколько осталось поставить</translation>
    </message>
    <message>
        <source>%1 of digit %2</source>
        <extracomment>%1 how many of the digit %2 are still to be placed</extracomment>
        <translation>%2 — ещё %1</translation>
    </message>
    <message>
        <source>Every digit is placed</source>
        <translation>Все цифры расставлены</translation>
    </message>
    <message>
        <source>Still to place: %1</source>
        <translation>Осталось поставить: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <extracomment>%2 lists the nine cells in order, such as &quot;7, empty, 4&quot;</extracomment>
        <translation>Строка %1: %2</translation>
    </message>
    <message>
        <source>Column %1: %2</source>
        <translation>Столбец %1: %2</translation>
    </message>
    <message>
        <source>Box %1: %2</source>
        <translation>Блок %1: %2</translation>
    </message>
</context>
<context>
    <name>HintController</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>строка %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>столбец %1</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>блок %1</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>строка %1, столбец %2</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>столбцы %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>строки %1</translation>
    </message>
    <message>
        <source>row %1, columns %2</source>
        <translation>строка %1, столбцы %2</translation>
    </message>
    <message>
        <source>column %1, rows %2</source>
        <translation>столбец %1, строки %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>; </translation>
    </message>
    <message>
        <source>Last empty cell</source>
        <translation>Последняя пустая клетка</translation>
    </message>
    <message>
        <source>Hidden single</source>
        <translation>Скрытая одиночка</translation>
    </message>
    <message>
        <source>Naked single</source>
        <translation>Открытая одиночка</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Одиночка</translation>
    </message>
    <message>
        <source>Locked candidates</source>
        <translation>Блокировка кандидатов</translation>
    </message>
    <message>
        <source>Naked triple</source>
        <translation>Открытая тройка</translation>
    </message>
    <message>
        <source>Naked pair</source>
        <translation>Открытая пара</translation>
    </message>
    <message>
        <source>Naked quad</source>
        <translation>Открытая четвёрка</translation>
    </message>
    <message>
        <source>Hidden pair</source>
        <translation>Скрытая пара</translation>
    </message>
    <message>
        <source>Hidden triple</source>
        <translation>Скрытая тройка</translation>
    </message>
    <message>
        <source>Hidden quad</source>
        <translation>Скрытая четвёрка</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>в клетке (%1) стоит %2</translation>
    </message>
    <message>
        <source>%1 in %2 lies in %3</source>
        <translation>кандидаты %1 из «%2» лежат только в «%3»</translation>
    </message>
    <message>
        <source>in %1, %2 can only go in %3</source>
        <translation>«%1»: %2 могут стоять только в клетках (%3)</translation>
    </message>
    <message>
        <source>in %1, %2 can only hold %3</source>
        <translation>«%1»: клетки (%2) могут содержать только %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is the only empty cell in %2, so it holds %3</source>
        <translation>клетка (%1) — единственная пустая в «%2», значит, в ней %3</translation>
    </message>
    <message>
        <source>in %1, only %2 can hold %3</source>
        <translation>«%1»: только клетка (%2) может содержать %3</translation>
    </message>
    <message>
        <source>%1 can only hold %2</source>
        <translation>клетка (%1) может содержать только %2</translation>
    </message>
    <message>
        <source>so these cells keep only %1</source>
        <translation>значит, в этих клетках остаются только %1</translation>
    </message>
    <message>
        <source>so %1 is removed from %2</source>
        <translation>значит, %1 удаляется из клеток (%2)</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>so %1 is the only place left for %2 in %3</source>
        <translation>значит, клетка (%1) — единственное место для %2 в «%3»</translation>
    </message>
    <message>
        <source>so %1 can only hold %2</source>
        <translation>значит, клетка (%1) может содержать только %2</translation>
    </message>
    <message>
        <source>The board is complete: there is nothing left to hint.</source>
        <translation>Поле заполнено: подсказывать больше нечего.</translation>
    </message>
    <message>
        <source>The board is empty: enter a puzzle first, or use Make Move.</source>
        <translation>Поле пустое: сначала введите головоломку или воспользуйтесь «Сделать ход».</translation>
    </message>
    <message>
        <source>No rule finds a next step here. Make Move can place a value.</source>
        <translation>Ни одно правило не находит здесь следующего шага. «Сделать ход» может поставить значение.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 holds %2 twice.</source>
        <translation>Поле противоречиво: в «%1» дважды стоит %2.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no place left for %2.</source>
        <translation>Поле противоречиво: в «%1» некуда поставить %2.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no candidate left.</source>
        <translation>Поле противоречиво: у клетки (%1) не осталось кандидатов.</translation>
    </message>
    <message>
        <source>The hint could not be carried out.</source>
        <translation>Подсказку не удалось выполнить.</translation>
    </message>
</context>
<context>
    <name>KeptGame</name>
    <message>
        <source>The last game could not be read and was set aside.</source>
        <translation>Последнюю игру не удалось прочитать; её файл переименован и сохранён.</translation>
    </message>
    <message>
        <source>The last game could not be read.</source>
        <translation>Последнюю игру не удалось прочитать.</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved for the next start.</source>
        <translation>Текущую игру не удаётся сохранить до следующего запуска.</translation>
    </message>
</context>
<context>
    <name>PencilMarksOptions</name>
    <message>
        <source>Pencil Marks Options</source>
        <translation>Настройка пометок</translation>
    </message>
    <message>
        <source>Autoresolve pencilmarks using following methods:</source>
        <translation>Автоматически убирать кандидатов методами:</translation>
    </message>
    <message>
        <source>Available:</source>
        <translation>Доступные:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <translation>Выбранные:</translation>
    </message>
    <message>
        <source>00. Singles Row Only</source>
        <translation>00. Одиночки (строки)</translation>
    </message>
    <message>
        <source>01. Singles Col Only</source>
        <translation>01. Одиночки (столбцы)</translation>
    </message>
    <message>
        <source>02. Singles Square Only</source>
        <translation>02. Одиночки (блоки)</translation>
    </message>
    <message>
        <source>03. Singles Row + Col Only</source>
        <translation>03. Одиночки (стр. и столб.)</translation>
    </message>
    <message>
        <source>04. Singles</source>
        <translation>04. Одиночки</translation>
    </message>
    <message>
        <source>05. Doubles</source>
        <translation>05. Открытые пары</translation>
    </message>
    <message>
        <source>06. Triples</source>
        <translation>06. Открытые тройки</translation>
    </message>
    <message>
        <source>07. Quads</source>
        <translation>07. Открытые четвёрки</translation>
    </message>
    <message>
        <source>08. Transitive Doubles</source>
        <translation>08. Цепочки пар</translation>
    </message>
    <message>
        <source>09. Locked by Rows</source>
        <translation>09. Блокировка в строках</translation>
    </message>
    <message>
        <source>10. Locked by Cols</source>
        <translation>10. Блокировка в столбцах</translation>
    </message>
    <message>
        <source>11. Locked by Squares</source>
        <translation>11. Блокировка в блоках</translation>
    </message>
    <message>
        <source>12. Hidden Singles</source>
        <translation>12. Скрытые одиночки</translation>
    </message>
    <message>
        <source>13. Hidden Doubles</source>
        <translation>13. Скрытые пары</translation>
    </message>
    <message>
        <source>14. Hidden Triples</source>
        <translation>14. Скрытые тройки</translation>
    </message>
    <message>
        <source>15. Hidden Quads</source>
        <translation>15. Скрытые четвёрки</translation>
    </message>
</context>
<context>
    <name>PrintingInfoClass</name>
    <message>
        <source>Printing Info</source>
        <translation>Параметры печати</translation>
    </message>
    <message>
        <source>What to print?</source>
        <translation>Что печатать?</translation>
    </message>
    <message>
        <source>Current game</source>
        <translation>Текущую игру</translation>
    </message>
    <message>
        <source>Generate and print a new game</source>
        <translation>Новую игру</translation>
    </message>
    <message>
        <source>Generate and print two games on the same page</source>
        <translation>Две новые игры на странице</translation>
    </message>
    <message>
        <source>Generate and print four games on the same page</source>
        <translation>Четыре новые игры на странице</translation>
    </message>
    <message>
        <source>How many times to repeat above operation?</source>
        <translation>Сколько раз повторить?</translation>
    </message>
    <message>
        <source>Repeat count:</source>
        <translation>Повторов:</translation>
    </message>
    <message>
        <source>Level for generated games:</source>
        <translation>Уровень новых игр:</translation>
    </message>
    <message>
        <source>Export as PDF instead of printing</source>
        <translation>Сохранить в PDF вместо печати</translation>
    </message>
    <message>
        <source>Show print preview</source>
        <translation>Предварительный просмотр</translation>
    </message>
    <message>
        <source>High Resolution (best quality)</source>
        <translation>Высокое разрешение (лучшее качество)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Решённая</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Очень легко</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Легко</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Средне</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Сложно</translation>
    </message>
</context>
<context>
    <name>PuzzleClipboard</name>
    <message>
        <source>The clipboard holds no puzzle.
A puzzle is 81 cells: a digit for a given, 0 or . for an empty cell.</source>
        <translation>В буфере обмена нет задачи.
Задача — это 81 клетка: цифра для заданной клетки, 0 или . для пустой.</translation>
    </message>
    <message>
        <source>This puzzle cannot be played:
a row, column or square holds a digit twice.</source>
        <translation>В эту задачу нельзя играть:
в строке, столбце или квадрате цифра повторяется.</translation>
    </message>
    <message>
        <source>This puzzle has no solution.</source>
        <translation>У этой задачи нет решения.</translation>
    </message>
    <message>
        <source>This puzzle has more than one solution.</source>
        <translation>У этой задачи больше одного решения.</translation>
    </message>
    <message>
        <source>Puzzle pasted.</source>
        <translation>Задача вставлена.</translation>
    </message>
    <message>
        <source>Puzzle copied.</source>
        <translation>Задача скопирована.</translation>
    </message>
</context>
<context>
    <name>SudokuWindow</name>
    <message>
        <source>difficulty: none</source>
        <translation>сложность: нет</translation>
    </message>
    <message>
        <source>difficulty: Very Easy</source>
        <translation>сложность: очень легко</translation>
    </message>
    <message>
        <source>difficulty: Easy</source>
        <translation>сложность: легко</translation>
    </message>
    <message>
        <source>difficulty: Medium</source>
        <translation>сложность: средне</translation>
    </message>
    <message>
        <source>difficulty: Hard</source>
        <translation>сложность: сложно</translation>
    </message>
    <message>
        <source>difficulty: user edit</source>
        <translation>сложность: своя задача</translation>
    </message>
    <message>
        <source>No more moves can be done.</source>
        <translation>Ходов больше нет.</translation>
    </message>
    <message>
        <source>Cell %1 has no solution</source>
        <translation>У клетки %1 нет решения</translation>
    </message>
    <message>
        <source>This is not a valid .sud file</source>
        <translation>Это не файл .sud</translation>
    </message>
    <message>
        <source>Current game will be lost.
Continue?</source>
        <translation>Текущая игра будет потеряна.
Продолжить?</translation>
    </message>
    <message>
        <source>Failed to generate a valid game.</source>
        <translation>Не удалось создать игру.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Поздравляем!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Sudoku files (*.sud)</source>
        <translation>Файлы судоку (*.sud)</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Сохранить файл</translation>
    </message>
    <message>
        <source>Portable document files (*.pdf)</source>
        <translation>Документы PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Failed to load game</source>
        <translation>Не удалось загрузить игру</translation>
    </message>
    <message>
        <source>Failed to save game</source>
        <translation>Не удалось сохранить игру</translation>
    </message>
    <message>
        <source>Print Document</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <translation>Не удалось напечатать.</translation>
    </message>
    <message>
        <source>Loaded file version is incompatible
(expected version: %1 actual version: %2)</source>
        <translation>Версия загруженного файла несовместима
(ожидаемая версия: %1, фактическая версия: %2)</translation>
    </message>
    <message>
        <source>difficulty: Expert</source>
        <translation>сложность: эксперт</translation>
    </message>
</context>
<context>
    <name>SudokuWindowClass</name>
    <message>
        <source>Start a new game</source>
        <translation>Начать новую игру</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Игра</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Новая игра</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Toolbar Items</source>
        <translation>Кнопки панели</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Главная панель</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Решённая</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Completed Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Новая решённая игра&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a new game fully resolved</source>
        <translation>Создать полностью решённую игру</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Очень легко</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Very Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Новая очень лёгкая игра&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a very easy game</source>
        <translation>Создать очень лёгкую игру</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Легко</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Новая лёгкая игра&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a easy game</source>
        <translation>Создать лёгкую игру</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Средне</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Medium Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Новая игра средней сложности&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a medium game</source>
        <translation>Создать игру средней сложности</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Сложно</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Hard Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Новая сложная игра&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a hard game</source>
        <translation>Создать сложную игру</translation>
    </message>
    <message>
        <source>User Edit</source>
        <translation>Своя задача</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>&amp;Открыть игру...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Open game from disk&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Открыть игру с диска&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open Existing Game</source>
        <translation>Открыть сохранённую игру</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>&amp;Save Game...</source>
        <translation>&amp;Сохранить игру...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Save Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Сохранить игру&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Save current game</source>
        <translation>Сохранить текущую игру</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Печать...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Show Print Options&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Параметры печати&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Show print option dialog</source>
        <translation>Открыть параметры печати</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Печать...</translation>
    </message>
    <message>
        <source>&amp;Make Move</source>
        <translation>Сделать &amp;ход</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Make a move for me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Сделать ход за меня&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Make Move</source>
        <translation>Сделать ход</translation>
    </message>
    <message>
        <source>&amp;Retract Move</source>
        <translation>Отм&amp;енить ход</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Retract Move&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Отменить ход&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Retract Move</source>
        <translation>Отменить ход</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>Выйти из программы</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku for one, made with care&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Судоку для одного, сделанное с заботой&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Pencil Marks</source>
        <translation>Пометки</translation>
    </message>
    <message>
        <source>Pencil Marks Options...</source>
        <translation>Настройка пометок...</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>Statusbar</source>
        <translation>Строка состояния</translation>
    </message>
    <message>
        <source>New Game Icons</source>
        <translation>Новые игры</translation>
    </message>
    <message>
        <source>Open &amp;&amp; Save</source>
        <translation>Открыть &amp;&amp; сохранить</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Back &amp; Forward</source>
        <translation>Назад &amp; вперёд</translation>
    </message>
    <message>
        <source>&amp;Copy Puzzle</source>
        <translation>&amp;Копировать задачу</translation>
    </message>
    <message>
        <source>Copy the board as 81 characters</source>
        <translation>Скопировать поле как 81 символ</translation>
    </message>
    <message>
        <source>P&amp;aste Puzzle</source>
        <translation>&amp;Вставить задачу</translation>
    </message>
    <message>
        <source>Play the puzzle on the clipboard</source>
        <translation>Играть задачу из буфера обмена</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>По&amp;дсказка</translation>
    </message>
    <message>
        <source>Show the next step; press again to carry it out</source>
        <translation>Показать следующий шаг; нажмите ещё раз, чтобы выполнить его</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
    <message>
        <source>%1; %2 refused</source>
        <extracomment>%1 is a cell&apos;s name or its caret mode, %2 the digit the game refused there</extracomment>
        <translation>%1; %2 отклонено</translation>
    </message>
    <message>
        <source>Sudoku board</source>
        <translation>Поле судоку</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3, given</source>
        <extracomment>%3 is the cell&apos;s digit, a given of the puzzle</extracomment>
        <translation>Строка %1, столбец %2: %3, подсказка</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <extracomment>%3 is the digit the player (or Make Move) placed</extracomment>
        <translation>Строка %1, столбец %2: %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty, candidates %3</source>
        <extracomment>%3 lists the digits still possible in the cell, such as &quot;2 4 9&quot;</extracomment>
        <translation>Строка %1, столбец %2: пусто, кандидаты %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty</source>
        <translation>Строка %1, столбец %2: пусто</translation>
    </message>
    <message>
        <source>Caret: value entry</source>
        <translation>Курсор: ввод цифры</translation>
    </message>
    <message>
        <source>Caret: pencil marks</source>
        <translation>Курсор: пометки</translation>
    </message>
</context>
</TS>
