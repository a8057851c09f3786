<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Sudoku Vantu</source>
        <translation>关于 Sudoku Vantu</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;版本：&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Credits:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Application Author: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Icons Author: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Application homepage: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;致谢：&lt;/span&gt;&lt;/p&gt;&lt;p&gt;程序作者：&lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;图标作者：&lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;程序主页：&lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. 保留所有权利。&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>Announcer</name>
    <message>
        <source>candidate %1 back</source>
        <translation>候选数 %1 已恢复</translation>
    </message>
    <message>
        <source>candidate %1 removed</source>
        <translation>候选数 %1 已删除</translation>
    </message>
    <message>
        <source>The board is complete</source>
        <translation>盘面已完成</translation>
    </message>
    <message>
        <source>%1 refused: the board would have no solution</source>
        <translation>%1 被拒绝：盘面将无解</translation>
    </message>
    <message>
        <source>%1 refused: not this cell&apos;s digit</source>
        <translation>%1 被拒绝：不是此格的数字</translation>
    </message>
    <message>
        <source>%1 refused: row %2 already has %1 at column %3</source>
        <translation>%1 被拒绝：第 %2 行已在第 %3 列有 %1</translation>
    </message>
    <message>
        <source>%1 refused: column %2 already has %1 at row %3</source>
        <translation>%1 被拒绝：第 %2 列已在第 %3 行有 %1</translation>
    </message>
    <message>
        <source>%1 refused: box %2 already has %1 at row %3, column %4</source>
        <extracomment>%2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands</extracomment>
        <translation>%1 被拒绝：第 %2 宫已在第 %3 行第 %4 列有 %1</translation>
    </message>
    <message>
        <source>candidate %1 refused</source>
        <translation>候选数 %1 被拒绝</translation>
    </message>
    <message>
        <source>Game opened, %1, %2 empty cells</source>
        <extracomment>%1 is the level label (&quot;difficulty: Medium&quot;), %2 how many cells are empty</extracomment>
        <translation>已打开游戏，%1，%2 个空格</translation>
    </message>
    <message>
        <source>New game, %1, %2 empty cells</source>
        <translation>新游戏，%1，%2 个空格</translation>
    </message>
    <message>
        <source>Keys: R, C and B read the caret&apos;s row, column and box, N what is left to place</source>
        <translation>按键：R、C、B 朗读光标所在的行、列、宫，N 朗读还要填的数字</translation>
    </message>
    <message>
        <source>%1 of digit %2</source>
        <extracomment>%1 how many of the digit %2 are still to be placed</extracomment>
        <translation>%2 还差 %1 个</translation>
    </message>
    <message>
        <source>Every digit is placed</source>
        <translation>所有数字均已填入</translation>
    </message>
    <message>
        <source>Still to place: %1</source>
        <translation>待填：%1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <extracomment>%2 lists the nine cells in order, such as &quot;7, empty, 4&quot;</extracomment>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Column %1: %2</source>
        <translation>第 %1 列：%2</translation>
    </message>
    <message>
        <source>Box %1: %2</source>
        <translation>第 %1 宫：%2</translation>
    </message>
</context>
<context>
    <name>HintController</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1和%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>第%1行</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>第%1列</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>第%1宫</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>第%1行第%2列</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>第%1列</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>第%1行</translation>
    </message>
    <message>
        <source>row %1, columns %2</source>
        <translation>第%1行第%2列</translation>
    </message>
    <message>
        <source>column %1, rows %2</source>
        <translation>第%1列第%2行</translation>
    </message>
    <message>
        <source>; </source>
        <translation>；</translation>
    </message>
    <message>
        <source>Last empty cell</source>
        <translation>最后一格</translation>
    </message>
    <message>
        <source>Hidden single</source>
        <translation>隐性唯一数</translation>
    </message>
    <message>
        <source>Naked single</source>
        <translation>显性唯一数</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>唯一数</translation>
    </message>
    <message>
        <source>Locked candidates</source>
        <translation>区块排除</translation>
    </message>
    <message>
        <source>Naked triple</source>
        <translation>显性三数组</translation>
    </message>
    <message>
        <source>Naked pair</source>
        <translation>显性数对</translation>
    </message>
    <message>
        <source>Naked quad</source>
        <translation>显性四数组</translation>
    </message>
    <message>
        <source>Hidden pair</source>
        <translation>隐性数对</translation>
    </message>
    <message>
        <source>Hidden triple</source>
        <translation>隐性三数组</translation>
    </message>
    <message>
        <source>Hidden quad</source>
        <translation>隐性四数组</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>%1是%2</translation>
    </message>
    <message>
        <source>%1 in %2 lies in %3</source>
        <translation>%2中的%1都在%3内</translation>
    </message>
    <message>
        <source>in %1, %2 can only go in %3</source>
        <translation>在%1中，%2只能填在%3</translation>
    </message>
    <message>
        <source>in %1, %2 can only hold %3</source>
        <translation>在%1中，%2只能填%3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 is the only empty cell in %2, so it holds %3</source>
        <translation>%1是%2中唯一的空格，所以填%3</translation>
    </message>
    <message>
        <source>in %1, only %2 can hold %3</source>
        <translation>在%1中，只有%2能填%3</translation>
    </message>
    <message>
        <source>%1 can only hold %2</source>
        <translation>%1只能填%2</translation>
    </message>
    <message>
        <source>so these cells keep only %1</source>
        <translation>所以这些格只保留%1</translation>
    </message>
    <message>
        <source>so %1 is removed from %2</source>
        <translation>所以从%2中删去%1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>so %1 is the only place left for %2 in %3</source>
        <translation>所以%1是%3中唯一能填%2的位置</translation>
    </message>
    <message>
        <source>so %1 can only hold %2</source>
        <translation>所以%1只能填%2</translation>
    </message>
    <message>
        <source>The board is complete: there is nothing left to hint.</source>
        <translation>盘面已完成：没有可提示的了。</translation>
    </message>
    <message>
        <source>The board is empty: enter a puzzle first, or use Make Move.</source>
        <translation>盘面是空的：请先输入题目，或使用“走一步”。</translation>
    </message>
    <message>
        <source>No rule finds a next step here. Make Move can place a value.</source>
        <translation>没有规则能在这里找到下一步。“走一步”可以填入一个数。</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 holds %2 twice.</source>
        <translation>盘面自相矛盾：%1中%2出现了两次。</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no place left for %2.</source>
        <translation>盘面自相矛盾：%1中已没有位置可填%2。</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no candidate left.</source>
        <translation>盘面自相矛盾：%1已没有候选数。</translation>
    </message>
    <message>
        <source>The hint could not be carried out.</source>
        <translation>无法执行提示。</translation>
    </message>
</context>
<context>
    <name>KeptGame</name>
    <message>
        <source>The last game could not be read and was set aside.</source>
        <translation>无法读取上一局游戏，其文件已重命名保留。</translation>
    </message>
    <message>
        <source>The last game could not be read.</source>
        <translation>无法读取上一局游戏。</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved for the next start.</source>
        <translation>无法为下次启动保存当前游戏。</translation>
    </message>
</context>
<context>
    <name>PencilMarksOptions</name>
    <message>
        <source>Pencil Marks Options</source>
        <translation>笔记选项</translation>
    </message>
    <message>
        <source>Autoresolve pencilmarks using following methods:</source>
        <translation>用以下技巧自动排除候选数：</translation>
    </message>
    <message>
        <source>Available:</source>
        <translation>可用：</translation>
    </message>
    <message>
        <source>Selected:</source>
        <translation>已选：</translation>
    </message>
    <message>
        <source>00. Singles Row Only</source>
        <translation>00. 唯一数（仅行）</translation>
    </message>
    <message>
        <source>01. Singles Col Only</source>
        <translation>01. 唯一数（仅列）</translation>
    </message>
    <message>
        <source>02. Singles Square Only</source>
        <translation>02. 唯一数（仅宫）</translation>
    </message>
    <message>
        <source>03. Singles Row + Col Only</source>
        <translation>03. 唯一数（行和列）</translation>
    </message>
    <message>
        <source>04. Singles</source>
        <translation>04. 唯一数</translation>
    </message>
    <message>
        <source>05. Doubles</source>
        <translation>05. 显性数对</translation>
    </message>
    <message>
        <source>06. Triples</source>
        <translation>06. 显性三数组</translation>
    </message>
    <message>
        <source>07. Quads</source>
        <translation>07. 显性四数组</translation>
    </message>
    <message>
        <source>08. Transitive Doubles</source>
        <translation>08. 传递数对</translation>
    </message>
    <message>
        <source>09. Locked by Rows</source>
        <translation>09. 行区块排除</translation>
    </message>
    <message>
        <source>10. Locked by Cols</source>
        <translation>10. 列区块排除</translation>
    </message>
    <message>
        <source>11. Locked by Squares</source>
        <translation>11. 宫区块排除</translation>
    </message>
    <message>
        <source>12. Hidden Singles</source>
        <translation>12. 隐性唯一数</translation>
    </message>
    <message>
        <source>13. Hidden Doubles</source>
        <translation>13. 隐性数对</translation>
    </message>
    <message>
        <source>14. Hidden Triples</source>
        <translation>14. 隐性三数组</translation>
    </message>
    <message>
        <source>15. Hidden Quads</source>
        <translation>15. 隐性四数组</translation>
    </message>
</context>
<context>
    <name>PrintingInfoClass</name>
    <message>
        <source>Printing Info</source>
        <translation>打印设置</translation>
    </message>
    <message>
        <source>What to print?</source>
        <translation>打印什么？</translation>
    </message>
    <message>
        <source>Current game</source>
        <translation>当前游戏</translation>
    </message>
    <message>
        <source>Generate and print a new game</source>
        <translation>生成并打印一局新游戏</translation>
    </message>
    <message>
        <source>Generate and print two games on the same page</source>
        <translation>生成两局新游戏打印在同一页</translation>
    </message>
    <message>
        <source>Generate and print four games on the same page</source>
        <translation>生成四局新游戏打印在同一页</translation>
    </message>
    <message>
        <source>How many times to repeat above operation?</source>
        <translation>以上操作重复几次？</translation>
    </message>
    <message>
        <source>Repeat count:</source>
        <translation>重复次数：</translation>
    </message>
    <message>
        <source>Level for generated games:</source>
        <translation>新游戏难度：</translation>
    </message>
    <message>
        <source>Export as PDF instead of printing</source>
        <translation>导出为 PDF 而不打印</translation>
    </message>
    <message>
        <source>Show print preview</source>
        <translation>显示打印预览</translation>
    </message>
    <message>
        <source>High Resolution (best quality)</source>
        <translation>高分辨率（最佳质量）</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>非常简单</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>简单</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中等</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>困难</translation>
    </message>
</context>
<context>
    <name>PuzzleClipboard</name>
    <message>
        <source>The clipboard holds no puzzle.
A puzzle is 81 cells: a digit for a given, 0 or . for an empty cell.</source>
        <translation>剪贴板中没有题目。
题目由 81 个格子组成：已知数用数字表示，空格用 0 或 . 表示。</translation>
    </message>
    <message>
        <source>This puzzle cannot be played:
a row, column or square holds a digit twice.</source>
        <translation>无法进行这道题目：
某一行、列或宫中有重复的数字。</translation>
    </message>
    <message>
        <source>This puzzle has no solution.</source>
        <translation>这道题目无解。</translation>
    </message>
    <message>
        <source>This puzzle has more than one solution.</source>
        <translation>这道题目有不止一个解。</translation>
    </message>
    <message>
        <source>Puzzle pasted.</source>
        <translation>已粘贴题目。</translation>
    </message>
    <message>
        <source>Puzzle copied.</source>
        <translation>已复制题目。</translation>
    </message>
</context>
<context>
    <name>SudokuWindow</name>
    <message>
        <source>difficulty: none</source>
        <translation>难度：无</translation>
    </message>
    <message>
        <source>difficulty: Very Easy</source>
        <translation>难度：非常简单</translation>
    </message>
    <message>
        <source>difficulty: Easy</source>
        <translation>难度：简单</translation>
    </message>
    <message>
        <source>difficulty: Medium</source>
        <translation>难度：中等</translation>
    </message>
    <message>
        <source>difficulty: Hard</source>
        <translation>难度：困难</translation>
    </message>
    <message>
        <source>difficulty: user edit</source>
        <translation>难度：自定义题目</translation>
    </message>
    <message>
        <source>No more moves can be done.</source>
        <translation>无法再走了。</translation>
    </message>
    <message>
        <source>Cell %1 has no solution</source>
        <translation>格 %1 无解</translation>
    </message>
    <message>
        <source>This is not a valid .sud file</source>
        <translation>这不是有效的 .sud 文件</translation>
    </message>
    <message>
        <source>Current game will be lost.
Continue?</source>
        <translation>当前游戏将会丢失。
是否继续？</translation>
    </message>
    <message>
        <source>Failed to generate a valid game.</source>
        <translation>未能生成有效的游戏。</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>恭喜！</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Sudoku files (*.sud)</source>
        <translation>数独文件 (*.sud)</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Portable document files (*.pdf)</source>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>Failed to load game</source>
        <translation>无法打开游戏</translation>
    </message>
    <message>
        <source>Failed to save game</source>
        <translation>无法保存游戏</translation>
    </message>
    <message>
        <source>Print Document</source>
        <translation>打印文档</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <translation>打印失败。</translation>
    </message>
    <message>
        <source>Loaded file version is incompatible
(expected version: %1 actual version: %2)</source>
        <translation>载入的文件版本不兼容
（预期版本：%1，实际版本：%2）</translation>
    </message>
    <message>
        <source>difficulty: Expert</source>
        <translation>难度：专家</translation>
    </message>
</context>
<context>
    <name>SudokuWindowClass</name>
    <message>
        <source>Start a new game</source>
        <translation>开始新游戏</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>游戏(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>新游戏(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Toolbar Items</source>
        <translation>工具栏按钮</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>主工具栏</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Completed Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新的已完成游戏&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a new game fully resolved</source>
        <translation>生成一局已完成的游戏</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>非常简单</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Very Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新的非常简单游戏&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a very easy game</source>
        <translation>生成一局非常简单的游戏</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>简单</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新的简单游戏&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a easy game</source>
        <translation>生成一局简单的游戏</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中等</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Medium Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新的中等游戏&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a medium game</source>
        <translation>生成一局中等难度的游戏</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>困难</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Hard Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新的困难游戏&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a hard game</source>
        <translation>生成一局困难的游戏</translation>
    </message>
    <message>
        <source>User Edit</source>
        <translation>自定义题目</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>打开游戏(&amp;O)...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Open game from disk&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;从磁盘打开游戏&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open Existing Game</source>
        <translation>打开已保存的游戏</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;Save Game...</source>
        <translation>保存游戏(&amp;S)...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Save Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;保存游戏&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Save current game</source>
        <translation>保存当前游戏</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Show Print Options&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;显示打印设置&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Show print option dialog</source>
        <translation>显示打印设置</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>打印...</translation>
    </message>
    <message>
        <source>&amp;Make Move</source>
        <translation>走一步(&amp;M)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Make a move for me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;帮我走一步&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Make Move</source>
        <translation>走一步</translation>
    </message>
    <message>
        <source>&amp;Retract Move</source>
        <translation>撤销一步(&amp;R)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Retract Move&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;撤销一步&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Retract Move</source>
        <translation>撤销一步</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku for one, made with care&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;一人数独，用心制作&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Pencil Marks</source>
        <translation>笔记</translation>
    </message>
    <message>
        <source>Pencil Marks Options...</source>
        <translation>笔记选项...</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Statusbar</source>
        <translation>状态栏</translation>
    </message>
    <message>
        <source>New Game Icons</source>
        <translation>新游戏</translation>
    </message>
    <message>
        <source>Open &amp;&amp; Save</source>
        <translation>打开 &amp;&amp; 保存</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Back &amp; Forward</source>
        <translation>后退 &amp; 前进</translation>
    </message>
    <message>
        <source>&amp;Copy Puzzle</source>
        <translation>复制题目(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the board as 81 characters</source>
        <translation>将盘面复制为 81 个字符</translation>
    </message>
    <message>
        <source>P&amp;aste Puzzle</source>
        <translation>粘贴题目(&amp;A)</translation>
    </message>
    <message>
        <source>Play the puzzle on the clipboard</source>
        <translation>玩剪贴板中的题目</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>提示(&amp;H)</translation>
    </message>
    <message>
        <source>Show the next step; press again to carry it out</source>
        <translation>显示下一步；再按一次即执行</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>%1; %2 refused</source>
        <extracomment>%1 is a cell&apos;s name or its caret mode, %2 the digit the game refused there</extracomment>
        <translation>%1；%2 被拒绝</translation>
    </message>
    <message>
        <source>Sudoku board</source>
        <translation>数独盘面</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3, given</source>
        <extracomment>%3 is the cell&apos;s digit, a given of the puzzle</extracomment>
        <translation>第 %1 行，第 %2 列：%3，提示数</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <extracomment>%3 is the digit the player (or Make Move) placed</extracomment>
        <translation>第 %1 行，第 %2 列：%3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty, candidates %3</source>
        <extracomment>%3 lists the digits still possible in the cell, such as &quot;2 4 9&quot;</extracomment>
        <translation>第 %1 行，第 %2 列：空，候选数 %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty</source>
        <translation>第 %1 行，第 %2 列：空</translation>
    </message>
    <message>
        <source>Caret: value entry</source>
        <translation>光标：填数</translation>
    </message>
    <message>
        <source>Caret: pencil marks</source>
        <translation>光标：笔记</translation>
    </message>
</context>
</TS>
