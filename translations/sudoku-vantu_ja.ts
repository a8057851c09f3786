<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Sudoku Vantu</source>
        <translation>Sudoku Vantu について</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;バージョン:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Credits:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Application Author: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Icons Author: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Application homepage: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;クレジット:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;プログラム作者: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;アイコン作者: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;ホームページ: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>Announcer</name>
    <message>
        <source>candidate %1 back</source>
        <translation>候補 %1 を戻しました</translation>
    </message>
    <message>
        <source>candidate %1 removed</source>
        <translation>候補 %1 を消しました</translation>
    </message>
    <message>
        <source>The board is complete</source>
        <translation>盤面が完成しました</translation>
    </message>
    <message>
        <source>%1 refused: the board would have no solution</source>
        <translation>%1 は入りません: 盤面の解がなくなります</translation>
    </message>
    <message>
        <source>%1 refused: not this cell&apos;s digit</source>
        <translation>%1 は入りません: このマスの数字ではありません</translation>
    </message>
    <message>
        <source>%1 refused: row %2 already has %1 at column %3</source>
        <translation>%1 は入りません: %2 行の %3 列に %1 があります</translation>
    </message>
    <message>
        <source>%1 refused: column %2 already has %1 at row %3</source>
        <translation>%1 は入りません: %2 列の %3 行に %1 があります</translation>
    </message>
    <message>
        <source>%1 refused: box %2 already has %1 at row %3, column %4</source>
        <extracomment>%2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands</extracomment>
        <translation>%1 は入りません: ブロック %2 の %3 行 %4 列に %1 があります</translation>
    </message>
    <message>
        <source>candidate %1 refused</source>
        <translation>候補 %1 は変更できません</translation>
    </message>
    <message>
        <source>Game opened, %1, %2 empty cells</source>
        <extracomment>%1 is the level label (&quot;difficulty: Medium&quot;), %2 how many cells are empty</extracomment>
        <translation>ゲームを開きました、%1、空きマス %2</translation>
    </message>
    <message>
        <source>New game, %1, %2 empty cells</source>
        <translation>新しいゲーム、%1、空きマス %2</translation>
    </message>
    <message>
        <source>Keys: R, C and B read the caret&apos;s row, column and box, N what is left to place</source>
        <translation>キー: R・C・B でカーソルの行・列・ブロック、N で残りの数字を読み上げます</translation>
    </message>
    <message>
        <source>%1 of digit %2</source>
        <extracomment>%1 how many of the digit %2 are still to be placed</extracomment>
        <translation>%2 があと %1 個</translation>
    </message>
    <message>
        <source>Every digit is placed</source>
        <translation>すべての数字が入りました</translation>
    </message>
    <message>
        <source>Still to place: %1</source>
        <translation>残り: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空き</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <extracomment>%2 lists the nine cells in order, such as &quot;7, empty, 4&quot;</extracomment>
        <translation>%1 行: %2</translation>
    </message>
    <message>
        <source>Column %1: %2</source>
        <translation>%1 列: %2</translation>
    </message>
    <message>
        <source>Box %1: %2</source>
        <translation>ブロック %1: %2</translation>
    </message>
</context>
<context>
    <name>HintController</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>%1行目</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>%1列目</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>ブロック%1</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>%1行%2列</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>%1列</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>%1行</translation>
    </message>
    <message>
        <source>row %1, columns %2</source>
        <translation>%1行の%2列</translation>
    </message>
    <message>
        <source>column %1, rows %2</source>
        <translation>%1列の%2行</translation>
    </message>
    <message>
        <source>; </source>
        <translation>；</translation>
    </message>
    <message>
        <source>Last empty cell</source>
        <translation>最後の空きマス</translation>
    </message>
    <message>
        <source>Hidden single</source>
        <translation>隠れシングル</translation>
    </message>
    <message>
        <source>Naked single</source>
        <translation>ネイキッドシングル</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>シングル</translation>
    </message>
    <message>
        <source>Locked candidates</source>
        <translation>候補のロック</translation>
    </message>
    <message>
        <source>Naked triple</source>
        <translation>ネイキッドトリプル</translation>
    </message>
    <message>
        <source>Naked pair</source>
        <translation>ネイキッドペア</translation>
    </message>
    <message>
        <source>Naked quad</source>
        <translation>ネイキッドクアッド</translation>
    </message>
    <message>
        <source>Hidden pair</source>
        <translation>隠れペア</translation>
    </message>
    <message>
        <source>Hidden triple</source>
        <translation>隠れトリプル</translation>
    </message>
    <message>
        <source>Hidden quad</source>
        <translation>隠れクアッド</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>%1は%2</translation>
    </message>
    <message>
        <source>%1 in %2 lies in %3</source>
        <translation>%2の%1は%3の中だけにある</translation>
    </message>
    <message>
        <source>in %1, %2 can only go in %3</source>
        <translation>%1では、%2は%3にしか入らない</translation>
    </message>
    <message>
        <source>in %1, %2 can only hold %3</source>
        <translation>%1では、%2には%3しか入らない</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 is the only empty cell in %2, so it holds %3</source>
        <translation>%1は%2で唯一の空きマスなので、%3が入る</translation>
    </message>
    <message>
        <source>in %1, only %2 can hold %3</source>
        <translation>%1では、%3が入るのは%2だけ</translation>
    </message>
    <message>
        <source>%1 can only hold %2</source>
        <translation>%1には%2しか入らない</translation>
    </message>
    <message>
        <source>so these cells keep only %1</source>
        <translation>よってこれらのマスには%1だけが残る</translation>
    </message>
    <message>
        <source>so %1 is removed from %2</source>
        <translation>よって%2から%1を消す</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>so %1 is the only place left for %2 in %3</source>
        <translation>よって%3で%2が入るのは%1だけ</translation>
    </message>
    <message>
        <source>so %1 can only hold %2</source>
        <translation>よって%1には%2しか入らない</translation>
    </message>
    <message>
        <source>The board is complete: there is nothing left to hint.</source>
        <translation>盤面は完成しています：ヒントはもうありません。</translation>
    </message>
    <message>
        <source>The board is empty: enter a puzzle first, or use Make Move.</source>
        <translation>盤面が空です：先に問題を入力するか、「一手進める」を使ってください。</translation>
    </message>
    <message>
        <source>No rule finds a next step here. Make Move can place a value.</source>
        <translation>次の一手を見つけられる規則がありません。「一手進める」で数字を置けます。</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 holds %2 twice.</source>
        <translation>盤面が矛盾しています：%1に%2が2つあります。</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no place left for %2.</source>
        <translation>盤面が矛盾しています：%1には%2を入れる場所がありません。</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no candidate left.</source>
        <translation>盤面が矛盾しています：%1に候補が残っていません。</translation>
    </message>
    <message>
        <source>The hint could not be carried out.</source>
        <translation>ヒントを実行できませんでした。</translation>
    </message>
</context>
<context>
    <name>KeptGame</name>
    <message>
        <source>The last game could not be read and was set aside.</source>
        <translation>前回のゲームを読み込めなかったため、ファイルを別名で保管しました。</translation>
    </message>
    <message>
        <source>The last game could not be read.</source>
        <translation>前回のゲームを読み込めませんでした。</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved for the next start.</source>
        <translation>進行中のゲームを次回の起動用に保存できません。</translation>
    </message>
</context>
<context>
    <name>PencilMarksOptions</name>
    <message>
        <source>Pencil Marks Options</source>
        <translation>メモの設定</translation>
    </message>
    <message>
        <source>Autoresolve pencilmarks using following methods:</source>
        <translation>次のテクニックで候補を自動で消す:</translation>
    </message>
    <message>
        <source>Available:</source>
        <translation>使用できるもの:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <translation>選んだもの:</translation>
    </message>
    <message>
        <source>00. Singles Row Only</source>
        <translation>00. シングル(行のみ)</translation>
    </message>
    <message>
        <source>01. Singles Col Only</source>
        <translation>01. シングル(列のみ)</translation>
    </message>
    <message>
        <source>02. Singles Square Only</source>
        <translation>02. シングル(ブロックのみ)</translation>
    </message>
    <message>
        <source>03. Singles Row + Col Only</source>
        <translation>03. シングル(行と列)</translation>
    </message>
    <message>
        <source>04. Singles</source>
        <translation>04. シングル</translation>
    </message>
    <message>
        <source>05. Doubles</source>
        <translation>05. ネイキッドペア</translation>
    </message>
    <message>
        <source>06. Triples</source>
        <translation>06. ネイキッドトリプル</translation>
    </message>
    <message>
        <source>07. Quads</source>
        <translation>07. ネイキッドクアッド</translation>
    </message>
    <message>
        <source>08. Transitive Doubles</source>
        <translation>08. 連鎖ペア</translation>
    </message>
    <message>
        <source>09. Locked by Rows</source>
        <translation>09. 行のロック</translation>
    </message>
    <message>
        <source>10. Locked by Cols</source>
        <translation>10. 列のロック</translation>
    </message>
    <message>
        <source>11. Locked by Squares</source>
        <translation>11. ブロックのロック</translation>
    </message>
    <message>
        <source>12. Hidden Singles</source>
        <translation>12. 隠れシングル</translation>
    </message>
    <message>
        <source>13. Hidden Doubles</source>
        <translation>13. 隠れペア</translation>
    </message>
    <message>
        <source>14. Hidden Triples</source>
        <translation>14. 隠れトリプル</translation>
    </message>
    <message>
        <source>15. Hidden Quads</source>
        <translation>15. 隠れクアッド</translation>
    </message>
</context>
<context>
    <name>PrintingInfoClass</name>
    <message>
        <source>Printing Info</source>
        <translation>印刷の設定</translation>
    </message>
    <message>
        <source>What to print?</source>
        <translation>印刷するもの</translation>
    </message>
    <message>
        <source>Current game</source>
        <translation>現在のゲーム</translation>
    </message>
    <message>
        <source>Generate and print a new game</source>
        <translation>新しいゲームを作って印刷</translation>
    </message>
    <message>
        <source>Generate and print two games on the same page</source>
        <translation>新しいゲーム 2 つを 1 ページに印刷</translation>
    </message>
    <message>
        <source>Generate and print four games on the same page</source>
        <translation>新しいゲーム 4 つを 1 ページに印刷</translation>
    </message>
    <message>
        <source>How many times to repeat above operation?</source>
        <translation>上の操作を繰り返す回数</translation>
    </message>
    <message>
        <source>Repeat count:</source>
        <translation>回数:</translation>
    </message>
    <message>
        <source>Level for generated games:</source>
        <translation>新しいゲームの難易度:</translation>
    </message>
    <message>
        <source>Export as PDF instead of printing</source>
        <translation>印刷せずに PDF に書き出す</translation>
    </message>
    <message>
        <source>Show print preview</source>
        <translation>印刷プレビューを表示</translation>
    </message>
    <message>
        <source>High Resolution (best quality)</source>
        <translation>高解像度(最高品質)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完成済み</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>とてもやさしい</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>やさしい</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>ふつう</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>むずかしい</translation>
    </message>
</context>
<context>
    <name>PuzzleClipboard</name>
    <message>
        <source>The clipboard holds no puzzle.
A puzzle is 81 cells: a digit for a given, 0 or . for an empty cell.</source>
        <translation>クリップボードに問題がありません。
問題は 81 マスです: ヒントは数字、空きマスは 0 または . で表します。</translation>
    </message>
    <message>
        <source>This puzzle cannot be played:
a row, column or square holds a digit twice.</source>
        <translation>この問題は遊べません:
行・列・ブロックのどこかに同じ数字が 2 つあります。</translation>
    </message>
    <message>
        <source>This puzzle has no solution.</source>
        <translation>この問題には解がありません。</translation>
    </message>
    <message>
        <source>This puzzle has more than one solution.</source>
        <translation>この問題には複数の解があります。</translation>
    </message>
    <message>
        <source>Puzzle pasted.</source>
        <translation>問題を貼り付けました。</translation>
    </message>
    <message>
        <source>Puzzle copied.</source>
        <translation>問題をコピーしました。</translation>
    </message>
</context>
<context>
    <name>SudokuWindow</name>
    <message>
        <source>difficulty: none</source>
        <translation>難易度: なし</translation>
    </message>
    <message>
        <source>difficulty: Very Easy</source>
        <translation>難易度: とてもやさしい</translation>
    </message>
    <message>
        <source>difficulty: Easy</source>
        <translation>難易度: やさしい</translation>
    </message>
    <message>
        <source>difficulty: Medium</source>
        <translation>難易度: ふつう</translation>
    </message>
    <message>
        <source>difficulty: Hard</source>
        <translation>難易度: むずかしい</translation>
    </message>
    <message>
        <source>difficulty: user edit</source>
        <translation>難易度: 自作問題</translation>
    </message>
    <message>
        <source>No more moves can be done.</source>
        <translation>これ以上進められる手はありません。</translation>
    </message>
    <message>
        <source>Cell %1 has no solution</source>
        <translation>マス %1 に入る数字がありません</translation>
    </message>
    <message>
        <source>This is not a valid .sud file</source>
        <translation>正しい .sud ファイルではありません</translation>
    </message>
    <message>
        <source>Current game will be lost.
Continue?</source>
        <translation>現在のゲームは失われます。
続けますか?</translation>
    </message>
    <message>
        <source>Failed to generate a valid game.</source>
        <translation>ゲームを作れませんでした。</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>おめでとうございます!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Sudoku files (*.sud)</source>
        <translation>数独ファイル (*.sud)</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>Portable document files (*.pdf)</source>
        <translation>PDF 文書 (*.pdf)</translation>
    </message>
    <message>
        <source>Failed to load game</source>
        <translation>ゲームを開けませんでした</translation>
    </message>
    <message>
        <source>Failed to save game</source>
        <translation>ゲームを保存できませんでした</translation>
    </message>
    <message>
        <source>Print Document</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <translation>印刷できませんでした。</translation>
    </message>
    <message>
        <source>Loaded file version is incompatible
(expected version: %1 actual version: %2)</source>
        <translation>読み込んだファイルのバージョンに互換性がありません
（必要なバージョン：%1、実際のバージョン：%2）</translation>
    </message>
    <message>
        <source>difficulty: Expert</source>
        <translation>難易度: エキスパート</translation>
    </message>
</context>
<context>
    <name>SudokuWindowClass</name>
    <message>
        <source>Start a new game</source>
        <translation>新しいゲームを始める</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>ゲーム(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>新しいゲーム(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Toolbar Items</source>
        <translation>ツールバーの項目</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>メインツールバー</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完成済み</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Completed Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新しい完成済みゲーム&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a new game fully resolved</source>
        <translation>すべて解けたゲームを作る</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>とてもやさしい</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Very Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新しいとてもやさしいゲーム&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a very easy game</source>
        <translation>とてもやさしいゲームを作る</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>やさしい</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新しいやさしいゲーム&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a easy game</source>
        <translation>やさしいゲームを作る</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>ふつう</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Medium Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新しいふつうのゲーム&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a medium game</source>
        <translation>ふつうのゲームを作る</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>むずかしい</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Hard Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;新しいむずかしいゲーム&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a hard game</source>
        <translation>むずかしいゲームを作る</translation>
    </message>
    <message>
        <source>User Edit</source>
        <translation>自作問題</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>ゲームを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Open game from disk&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;ディスクからゲームを開く&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open Existing Game</source>
        <translation>保存したゲームを開く</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>&amp;Save Game...</source>
        <translation>ゲームを保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Save Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;ゲームを保存&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Save current game</source>
        <translation>現在のゲームを保存</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Show Print Options&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;印刷の設定を表示&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Show print option dialog</source>
        <translation>印刷の設定を表示</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>印刷...</translation>
    </message>
    <message>
        <source>&amp;Make Move</source>
        <translation>一手進める(&amp;M)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Make a move for me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;代わりに一手進める&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Make Move</source>
        <translation>一手進める</translation>
    </message>
    <message>
        <source>&amp;Retract Move</source>
        <translation>一手戻す(&amp;R)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Retract Move&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;一手戻す&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Retract Move</source>
        <translation>一手戻す</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>プログラムを終了</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku for one, made with care&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;ひとりで楽しむ数独、心をこめて&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Pencil Marks</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Pencil Marks Options...</source>
        <translation>メモの設定...</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Statusbar</source>
        <translation>ステータスバー</translation>
    </message>
    <message>
        <source>New Game Icons</source>
        <translation>新しいゲーム</translation>
    </message>
    <message>
        <source>Open &amp;&amp; Save</source>
        <translation>開く &amp;&amp; 保存</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Back &amp; Forward</source>
        <translation>戻る &amp; 進む</translation>
    </message>
    <message>
        <source>&amp;Copy Puzzle</source>
        <translation>問題をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the board as 81 characters</source>
        <translation>盤面を 81 文字としてコピー</translation>
    </message>
    <message>
        <source>P&amp;aste Puzzle</source>
        <translation>問題を貼り付け(&amp;A)</translation>
    </message>
    <message>
        <source>Play the puzzle on the clipboard</source>
        <translation>クリップボードの問題で遊ぶ</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>ヒント(&amp;H)</translation>
    </message>
    <message>
        <source>Show the next step; press again to carry it out</source>
        <translation>次の一手を表示し、もう一度押すと実行します</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>%1; %2 refused</source>
        <extracomment>%1 is a cell&apos;s name or its caret mode, %2 the digit the game refused there</extracomment>
        <translation>%1; %2 は入りません</translation>
    </message>
    <message>
        <source>Sudoku board</source>
        <translation>数独の盤面</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3, given</source>
        <extracomment>%3 is the cell&apos;s digit, a given of the puzzle</extracomment>
        <translation>%1 行 %2 列: %3、ヒント数字</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <extracomment>%3 is the digit the player (or Make Move) placed</extracomment>
        <translation>%1 行 %2 列: %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty, candidates %3</source>
        <extracomment>%3 lists the digits still possible in the cell, such as &quot;2 4 9&quot;</extracomment>
        <translation>%1 行 %2 列: 空き、候補 %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty</source>
        <translation>%1 行 %2 列: 空き</translation>
    </message>
    <message>
        <source>Caret: value entry</source>
        <translation>カーソル: 数字の入力</translation>
    </message>
    <message>
        <source>Caret: pencil marks</source>
        <translation>カーソル: メモ</translation>
    </message>
</context>
</TS>
