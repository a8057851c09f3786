<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Sudoku Vantu</source>
        <translation>À propos de Sudoku Vantu</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version:&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Version :&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Credits:&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Application Author: &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Icons Author: &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Application homepage: &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Sudoku Vantu developers. All rights reserved.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Remerciements :&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Auteurs du programme : &lt;span style=&quot; font-weight:600;&quot;&gt;Sudoku Vantu developers&lt;/span&gt; &lt;a href=&quot;mailto:developers@sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;developers@sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;Auteur des icônes : &lt;a href=&quot;https://sudoku-vantu.org/art&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;sudoku-vantu.org/art&lt;/span&gt;&lt;/a&gt; (&lt;span style=&quot; font-weight:600;&quot;&gt;Vantu&lt;/span&gt;)&lt;/p&gt;&lt;p&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-cool-48.png&quot;/&gt;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&amp;nbsp;&lt;img src=&quot;:/Sudoku/Resources/blue-about-rose-48.png&quot;/&gt;&lt;br/&gt;Site du programme : &lt;a href=&quot;https://sudoku-vantu.org&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0000ff;&quot;&gt;https://sudoku-vantu.org&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; color:#8c8c8c;&quot;&gt;© 2026 Les développeurs de Sudoku Vantu. Tous droits réservés.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>Announcer</name>
    <message>
        <source>candidate %1 back</source>
        <translation>candidat %1 rétabli</translation>
    </message>
    <message>
        <source>candidate %1 removed</source>
        <translation>candidat %1 retiré</translation>
    </message>
    <message>
        <source>The board is complete</source>
        <translation>La grille est complète</translation>
    </message>
    <message>
        <source>%1 refused: the board would have no solution</source>
        <translation>%1 refusé : la grille n’aurait plus de solution</translation>
    </message>
    <message>
        <source>%1 refused: not this cell&apos;s digit</source>
        <translation>%1 refusé : ce n’est pas le chiffre de cette case</translation>
    </message>
    <message>
        <source>%1 refused: row %2 already has %1 at column %3</source>
        <translation>%1 refusé : la ligne %2 a déjà %1 en colonne %3</translation>
    </message>
    <message>
        <source>%1 refused: column %2 already has %1 at row %3</source>
        <translation>%1 refusé : la colonne %2 a déjà %1 en ligne %3</translation>
    </message>
    <message>
        <source>%1 refused: box %2 already has %1 at row %3, column %4</source>
        <extracomment>%2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands</extracomment>
        <translation>%1 refusé : le bloc %2 a déjà %1 en ligne %3, colonne %4</translation>
    </message>
    <message>
        <source>candidate %1 refused</source>
        <translation>candidat %1 refusé</translation>
    </message>
    <message>
        <source>Game opened, %1, %2 empty cells</source>
        <extracomment>%1 is the level label (&quot;difficulty: Medium&quot;), %2 how many cells are empty</extracomment>
        <translation>Partie ouverte, %1, %2 cases vides</translation>
    </message>
    <message>
        <source>New game, %1, %2 empty cells</source>
        <translation>Nouvelle partie, %1, %2 cases vides</translation>
    </message>
    <message>
        <source>Keys: R, C and B read the caret&apos;s row, column and box, N what is left to place</source>
        <translation>Touches : R, C et B lisent la ligne, la colonne et le bloc du curseur, N ce qui reste à placer</translation>
    </message>
    <message>
        <source>%1 of digit %2</source>
        <extracomment>%1 how many of the digit %2 are still to be placed</extracomment>
        <translation>%1 fois le %2</translation>
    </message>
    <message>
        <source>Every digit is placed</source>
        <translation>Tous les chiffres sont placés</translation>
    </message>
    <message>
        <source>Still to place: %1</source>
        <translation>Reste à placer : %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <extracomment>%2 lists the nine cells in order, such as &quot;7, empty, 4&quot;</extracomment>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Column %1: %2</source>
        <translation>Colonne %1 : %2</translation>
    </message>
    <message>
        <source>Box %1: %2</source>
        <translation>Bloc %1 : %2</translation>
    </message>
</context>
<context>
    <name>HintController</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>la ligne %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>la colonne %1</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>le bloc %1</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>colonnes %1</translation>
    </message>
    <message>
        <source>rows %1</source>
        <translation>lignes %1</translation>
    </message>
    <message>
        <source>row %1, columns %2</source>
        <translation>ligne %1, colonnes %2</translation>
    </message>
    <message>
        <source>column %1, rows %2</source>
        <translation>colonne %1, lignes %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation> ; </translation>
    </message>
    <message>
        <source>Last empty cell</source>
        <translation>Dernière case vide</translation>
    </message>
    <message>
        <source>Hidden single</source>
        <translation>Singleton caché</translation>
    </message>
    <message>
        <source>Naked single</source>
        <translation>Singleton nu</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Singleton</translation>
    </message>
    <message>
        <source>Locked candidates</source>
        <translation>Candidats verrouillés</translation>
    </message>
    <message>
        <source>Naked triple</source>
        <translation>Triplet nu</translation>
    </message>
    <message>
        <source>Naked pair</source>
        <translation>Paire nue</translation>
    </message>
    <message>
        <source>Naked quad</source>
        <translation>Quadruplet nu</translation>
    </message>
    <message>
        <source>Hidden pair</source>
        <translation>Paire cachée</translation>
    </message>
    <message>
        <source>Hidden triple</source>
        <translation>Triplet caché</translation>
    </message>
    <message>
        <source>Hidden quad</source>
        <translation>Quadruplet caché</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>la case %1 contient %2</translation>
    </message>
    <message>
        <source>%1 in %2 lies in %3</source>
        <translation>tous les candidats %1 que compte %2 sont dans %3</translation>
    </message>
    <message>
        <source>in %1, %2 can only go in %3</source>
        <translation>dans %1, %2 ne peuvent aller que dans les cases %3</translation>
    </message>
    <message>
        <source>in %1, %2 can only hold %3</source>
        <translation>dans %1, les cases %2 ne peuvent contenir que %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 is the only empty cell in %2, so it holds %3</source>
        <translation>la case %1 est la seule case vide dans %2, elle contient donc %3</translation>
    </message>
    <message>
        <source>in %1, only %2 can hold %3</source>
        <translation>dans %1, seule la case %2 peut contenir %3</translation>
    </message>
    <message>
        <source>%1 can only hold %2</source>
        <translation>la case %1 ne peut contenir que %2</translation>
    </message>
    <message>
        <source>so these cells keep only %1</source>
        <translation>donc ces cases ne gardent que %1</translation>
    </message>
    <message>
        <source>so %1 is removed from %2</source>
        <translation>donc %1 est retiré des cases %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>so %1 is the only place left for %2 in %3</source>
        <translation>donc la case %1 est la seule place restante pour %2 dans %3</translation>
    </message>
    <message>
        <source>so %1 can only hold %2</source>
        <translation>donc la case %1 ne peut contenir que %2</translation>
    </message>
    <message>
        <source>The board is complete: there is nothing left to hint.</source>
        <translation>La grille est complète : il n’y a plus rien à indiquer.</translation>
    </message>
    <message>
        <source>The board is empty: enter a puzzle first, or use Make Move.</source>
        <translation>La grille est vide : saisissez d’abord une grille, ou utilisez Jouer un coup.</translation>
    </message>
    <message>
        <source>No rule finds a next step here. Make Move can place a value.</source>
        <translation>Aucune règle ne trouve d’étape suivante ici. Jouer un coup peut placer une valeur.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 holds %2 twice.</source>
        <translation>La grille se contredit : %1 contient deux fois %2.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no place left for %2.</source>
        <translation>La grille se contredit : %1 n’a plus de place pour %2.</translation>
    </message>
    <message>
        <source>The board contradicts itself: %1 has no candidate left.</source>
        <translation>La grille se contredit : la case %1 n’a plus aucun candidat.</translation>
    </message>
    <message>
        <source>The hint could not be carried out.</source>
        <translation>L’indice n’a pas pu être appliqué.</translation>
    </message>
</context>
<context>
    <name>KeptGame</name>
    <message>
        <source>The last game could not be read and was set aside.</source>
        <translation>La dernière partie était illisible et a été mise de côté.</translation>
    </message>
    <message>
        <source>The last game could not be read.</source>
        <translation>La dernière partie était illisible.</translation>
    </message>
    <message>
        <source>The game in progress cannot be saved for the next start.</source>
        <translation>La partie en cours ne peut pas être conservée pour le prochain lancement.</translation>
    </message>
</context>
<context>
    <name>PencilMarksOptions</name>
    <message>
        <source>Pencil Marks Options</source>
        <translation>Options des annotations</translation>
    </message>
    <message>
        <source>Autoresolve pencilmarks using following methods:</source>
        <translation>Résoudre les annotations avec ces méthodes :</translation>
    </message>
    <message>
        <source>Available:</source>
        <translation>Disponibles :</translation>
    </message>
    <message>
        <source>Selected:</source>
        <translation>Choisies :</translation>
    </message>
    <message>
        <source>00. Singles Row Only</source>
        <translation>00. Singletons, lignes seules</translation>
    </message>
    <message>
        <source>01. Singles Col Only</source>
        <translation>01. Singletons, colonnes seules</translation>
    </message>
    <message>
        <source>02. Singles Square Only</source>
        <translation>02. Singletons, blocs seuls</translation>
    </message>
    <message>
        <source>03. Singles Row + Col Only</source>
        <translation>03. Singletons, lignes + colonnes</translation>
    </message>
    <message>
        <source>04. Singles</source>
        <translation>04. Singletons</translation>
    </message>
    <message>
        <source>05. Doubles</source>
        <translation>05. Paires</translation>
    </message>
    <message>
        <source>06. Triples</source>
        <translation>06. Triplets</translation>
    </message>
    <message>
        <source>07. Quads</source>
        <translation>07. Quadruplets</translation>
    </message>
    <message>
        <source>08. Transitive Doubles</source>
        <translation>08. Paires transitives</translation>
    </message>
    <message>
        <source>09. Locked by Rows</source>
        <translation>09. Verrouillés par lignes</translation>
    </message>
    <message>
        <source>10. Locked by Cols</source>
        <translation>10. Verrouillés par colonnes</translation>
    </message>
    <message>
        <source>11. Locked by Squares</source>
        <translation>11. Verrouillés par blocs</translation>
    </message>
    <message>
        <source>12. Hidden Singles</source>
        <translation>12. Singletons cachés</translation>
    </message>
    <message>
        <source>13. Hidden Doubles</source>
        <translation>13. Paires cachées</translation>
    </message>
    <message>
        <source>14. Hidden Triples</source>
        <translation>14. Triplets cachés</translation>
    </message>
    <message>
        <source>15. Hidden Quads</source>
        <translation>15. Quadruplets cachés</translation>
    </message>
</context>
<context>
    <name>PrintingInfoClass</name>
    <message>
        <source>Printing Info</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>What to print?</source>
        <translation>Que faut-il imprimer ?</translation>
    </message>
    <message>
        <source>Current game</source>
        <translation>La partie en cours</translation>
    </message>
    <message>
        <source>Generate and print a new game</source>
        <translation>Créer et imprimer une nouvelle grille</translation>
    </message>
    <message>
        <source>Generate and print two games on the same page</source>
        <translation>Créer et imprimer deux grilles par page</translation>
    </message>
    <message>
        <source>Generate and print four games on the same page</source>
        <translation>Créer et imprimer quatre grilles par page</translation>
    </message>
    <message>
        <source>How many times to repeat above operation?</source>
        <translation>Combien de fois répéter cette opération ?</translation>
    </message>
    <message>
        <source>Repeat count:</source>
        <translation>Répétitions :</translation>
    </message>
    <message>
        <source>Level for generated games:</source>
        <translation>Niveau des grilles créées :</translation>
    </message>
    <message>
        <source>Export as PDF instead of printing</source>
        <translation>Exporter en PDF au lieu d’imprimer</translation>
    </message>
    <message>
        <source>Show print preview</source>
        <translation>Afficher l’aperçu</translation>
    </message>
    <message>
        <source>High Resolution (best quality)</source>
        <translation>Haute résolution (meilleure qualité)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Résolue</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Très facile</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Facile</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
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
        <translation>Le presse-papiers ne contient aucune grille.
Une grille compte 81 cases : un chiffre pour une case donnée, 0 ou . pour une case vide.</translation>
    </message>
    <message>
        <source>This puzzle cannot be played:
a row, column or square holds a digit twice.</source>
        <translation>Cette grille est injouable :
une ligne, une colonne ou un carré contient deux fois le même chiffre.</translation>
    </message>
    <message>
        <source>This puzzle has no solution.</source>
        <translation>Cette grille n&apos;a aucune solution.</translation>
    </message>
    <message>
        <source>This puzzle has more than one solution.</source>
        <translation>Cette grille a plus d&apos;une solution.</translation>
    </message>
    <message>
        <source>Puzzle pasted.</source>
        <translation>Grille collée.</translation>
    </message>
    <message>
        <source>Puzzle copied.</source>
        <translation>Grille copiée.</translation>
    </message>
</context>
<context>
    <name>SudokuWindow</name>
    <message>
        <source>difficulty: none</source>
        <translation>niveau : aucun</translation>
    </message>
    <message>
        <source>difficulty: Very Easy</source>
        <translation>niveau : Très facile</translation>
    </message>
    <message>
        <source>difficulty: Easy</source>
        <translation>niveau : Facile</translation>
    </message>
    <message>
        <source>difficulty: Medium</source>
        <translation>niveau : Moyen</translation>
    </message>
    <message>
        <source>difficulty: Hard</source>
        <translation>niveau : Difficile</translation>
    </message>
    <message>
        <source>difficulty: user edit</source>
        <translation>niveau : personnel</translation>
    </message>
    <message>
        <source>No more moves can be done.</source>
        <translation>Plus aucun coup n’est possible.</translation>
    </message>
    <message>
        <source>Cell %1 has no solution</source>
        <translation>La case %1 n’a pas de solution</translation>
    </message>
    <message>
        <source>This is not a valid .sud file</source>
        <translation>Ce n’est pas un fichier .sud valide</translation>
    </message>
    <message>
        <source>Current game will be lost.
Continue?</source>
        <translation>La partie en cours sera perdue.
Continuer ?</translation>
    </message>
    <message>
        <source>Failed to generate a valid game.</source>
        <translation>Impossible de créer une grille valide.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Félicitations !</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Sudoku files (*.sud)</source>
        <translation>Fichiers Sudoku (*.sud)</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>Portable document files (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Failed to load game</source>
        <translation>Impossible de charger la partie</translation>
    </message>
    <message>
        <source>Failed to save game</source>
        <translation>Impossible d’enregistrer la partie</translation>
    </message>
    <message>
        <source>Print Document</source>
        <translation>Imprimer le document</translation>
    </message>
    <message>
        <source>Failed to print.</source>
        <translation>L’impression a échoué.</translation>
    </message>
    <message>
        <source>Loaded file version is incompatible
(expected version: %1 actual version: %2)</source>
        <translation>La version du fichier chargé est incompatible
(version attendue : %1, version réelle : %2)</translation>
    </message>
    <message>
        <source>difficulty: Expert</source>
        <translation>niveau : Expert</translation>
    </message>
</context>
<context>
    <name>SudokuWindowClass</name>
    <message>
        <source>Start a new game</source>
        <translation>Nouvelle partie</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Jeu</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Nouvelle partie</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Toolbar Items</source>
        <translation>Éléments de la barre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Barre d’outils principale</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Résolue</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Completed Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_resolved.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nouvelle grille résolue&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a new game fully resolved</source>
        <translation>Créer une grille entièrement résolue</translation>
    </message>
    <message>
        <source>Very Easy</source>
        <translation>Très facile</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Very Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_very_easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nouvelle grille très facile&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a very easy game</source>
        <translation>Créer une grille très facile</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Facile</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Easy Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue-easy.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nouvelle grille facile&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a easy game</source>
        <translation>Créer une grille facile</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Medium Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_normal.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nouvelle grille moyenne&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a medium game</source>
        <translation>Créer une grille moyenne</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Difficile</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;New Hard Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_hard.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Nouvelle grille difficile&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Generate a hard game</source>
        <translation>Créer une grille difficile</translation>
    </message>
    <message>
        <source>User Edit</source>
        <translation>Grille personnelle</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>&amp;Ouvrir une partie...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Open game from disk&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/open_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Ouvrir une partie enregistrée&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open Existing Game</source>
        <translation>Ouvrir une partie existante</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Save Game...</source>
        <translation>Enregi&amp;strer la partie...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Save Game&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/save_game.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Enregistrer la partie&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Save current game</source>
        <translation>Enregistrer la partie en cours</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Show Print Options&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/printer.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Options d’impression&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Show print option dialog</source>
        <translation>Afficher les options d’impression</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>&amp;Make Move</source>
        <translation>&amp;Jouer un coup</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Make a move for me&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_make_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Jouer un coup pour moi&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Make Move</source>
        <translation>Jouer un coup</translation>
    </message>
    <message>
        <source>&amp;Retract Move</source>
        <translation>&amp;Annuler le coup</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Retract Move&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/blue_retract_move.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Annuler le coup&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Retract Move</source>
        <translation>Annuler le coup</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;À propos</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu Version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku for one, made with care&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;&lt;img src=&quot;:/Sudoku/Resources/about.png&quot;/&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Sudoku Vantu version 1.0.0.1&lt;/span&gt;&lt;/p&gt;&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:11pt; font-weight:600;&quot;&gt;Le Sudoku en solo, fait avec soin&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Pencil Marks</source>
        <translation>Annotations</translation>
    </message>
    <message>
        <source>Pencil Marks Options...</source>
        <translation>Options des annotations...</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Statusbar</source>
        <translation>Barre d’état</translation>
    </message>
    <message>
        <source>New Game Icons</source>
        <translation>Icônes de nouvelle partie</translation>
    </message>
    <message>
        <source>Open &amp;&amp; Save</source>
        <translation>Ouvrir &amp;&amp; enregistrer</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Back &amp; Forward</source>
        <translation>Arrière &amp; avant</translation>
    </message>
    <message>
        <source>&amp;Copy Puzzle</source>
        <translation>&amp;Copier la grille</translation>
    </message>
    <message>
        <source>Copy the board as 81 characters</source>
        <translation>Copier la grille sous forme de 81 caractères</translation>
    </message>
    <message>
        <source>P&amp;aste Puzzle</source>
        <translation>Co&amp;ller une grille</translation>
    </message>
    <message>
        <source>Play the puzzle on the clipboard</source>
        <translation>Jouer la grille du presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>In&amp;dice</translation>
    </message>
    <message>
        <source>Show the next step; press again to carry it out</source>
        <translation>Montrer l’étape suivante ; appuyer de nouveau pour l’appliquer</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>%1; %2 refused</source>
        <extracomment>%1 is a cell&apos;s name or its caret mode, %2 the digit the game refused there</extracomment>
        <translation>%1 ; %2 refusé</translation>
    </message>
    <message>
        <source>Sudoku board</source>
        <translation>Grille de Sudoku</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3, given</source>
        <extracomment>%3 is the cell&apos;s digit, a given of the puzzle</extracomment>
        <translation>Ligne %1, colonne %2 : %3, donné</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <extracomment>%3 is the digit the player (or Make Move) placed</extracomment>
        <translation>Ligne %1, colonne %2 : %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty, candidates %3</source>
        <extracomment>%3 lists the digits still possible in the cell, such as &quot;2 4 9&quot;</extracomment>
        <translation>Ligne %1, colonne %2 : vide, candidats %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: empty</source>
        <translation>Ligne %1, colonne %2 : vide</translation>
    </message>
    <message>
        <source>Caret: value entry</source>
        <translation>Curseur : saisie des chiffres</translation>
    </message>
    <message>
        <source>Caret: pencil marks</source>
        <translation>Curseur : annotations</translation>
    </message>
</context>
</TS>
