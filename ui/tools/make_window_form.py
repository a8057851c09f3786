#!/usr/bin/env python3
"""Writes ui/SudokuWindow.ui, the main window's designer form.

The form holds 81 cell widgets in nine frames, which is easier to keep right
as a loop than by hand. Run it from anywhere: python3 ui/tools/make_window_form.py
"""
import os
import xml.dom.minidom
from xml.sax.saxutils import escape

OUT = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "SudokuWindow.ui")
RES = ":/Sudoku/Resources/"


def rect(x, y, w, h):
    return f'<property name="geometry"><rect><x>{x}</x><y>{y}</y><width>{w}</width><height>{h}</height></rect></property>'


def string(name, text, notr=False):
    n = ' notr="true"' if notr else ''
    return f'<property name="{name}"><string{n}>{escape(text)}</string></property>'


def prop(name, inner, stdset=True):
    s = '' if stdset else ' stdset="0"'
    return f'<property name="{name}"{s}>{inner}</property>'


def size(name, w, h):
    return prop(name, f'<size><width>{w}</width><height>{h}</height></size>')


def policy(h, v):
    return prop('sizePolicy', f'<sizepolicy hsizetype="{h}" vsizetype="{v}"><horstretch>0</horstretch><verstretch>0</verstretch></sizepolicy>')


def icon(name):
    return prop('icon', f'<iconset resource="../resources/resources.qrc"><normaloff>{RES}{name}</normaloff>{RES}{name}</iconset>')


def tooltip(image, caption, second=None):
    lines = f'<p align="center"><img src="{RES}{image}"/></p><p align="center"><span style=" font-size:11pt; font-weight:600;">{caption}</span></p>'
    if second:
        lines += f'<p align="center"><span style=" font-size:11pt; font-weight:600;">{second}</span></p>'
    return string('toolTip', f'<html><head/><body>{lines}</body></html>')


def action(name, text, ico=None, tip=None, status=None, checkable=False, checked=False, extra=''):
    parts = []
    if checkable:
        parts.append(prop('checkable', '<bool>true</bool>'))
        parts.append(prop('checked', f'<bool>{"true" if checked else "false"}</bool>'))
    if ico:
        parts.append(icon(ico))
    parts.append(string('text', text))
    if tip:
        parts.append(tooltip(*tip))
    if status:
        parts.append(string('statusTip', status))
    parts.append(extra)
    return f'<action name="{name}">' + ''.join(parts) + '</action>'


ACTIONS = [
    action('actionNewGameCompleted', 'Completed', 'blue_resolved.png', ('blue_resolved.png', 'New Completed Game'), 'Generate a new game fully resolved'),
    action('actionNewGameVeryEasy', 'Very Easy', 'blue_very_easy.png', ('blue_very_easy.png', 'New Very Easy Game'), 'Generate a very easy game'),
    action('actionNewGameEasy', 'Easy', 'blue-easy.png', ('blue-easy.png', 'New Easy Game'), 'Generate a easy game'),
    action('actionNewGameMedium', 'Medium', 'blue_normal.png', ('blue_normal.png', 'New Medium Game'), 'Generate a medium game'),
    action('actionNewGameHard', 'Hard', 'blue_hard.png', ('blue_hard.png', 'New Hard Game'), 'Generate a hard game'),
    action('actionNewGameUserEdit', 'User Edit', 'blue_empty.png'),
    action('actionOpenGame', '&Open Game...', 'open_game.png', ('open_game.png', 'Open game from disk'), 'Open Existing Game', extra=string('iconText', 'Open')),
    action('actionSaveGame', '&Save Game...', 'save_game.png', ('save_game.png', 'Save Game'), 'Save current game'),
    action('actionPrint', '&Print...', 'printer.png', ('printer.png', 'Show Print Options'), 'Show print option dialog',
           extra=string('iconText', 'Print...') + string('shortcut', 'Ctrl+P', notr=True)),
    action('actionMakeMove', '&Make Move', 'make_move.png', ('blue_make_move.png', 'Make a move for me'), 'Make Move'),
    action('actionRetractMove', '&Retract Move', 'retract_move.png', ('blue_retract_move.png', 'Retract Move'), 'Retract Move'),
    action('actionExit', 'E&xit', status='Exit Application'),
    action('actionAbout', '&About', 'about.png', ('about.png', 'Sudoku Vantu Version 1.0.0.1', 'Sudoku for one, made with care'), 'About'),
    action('actionViewPencilMarks', 'Pencil Marks', checkable=True, checked=False),
    action('actionViewPencilMarksOptions', 'Pencil Marks Options...'),
    action('actionViewToolbar', 'Toolbar', checkable=True, checked=True),
    action('actionViewStatusbar', 'Statusbar', checkable=True, checked=True),
    action('actionViewNewGameIcons', 'New Game Icons', checkable=True, checked=True),
    action('actionViewOpenSaveIcons', 'Open && Save', checkable=True, checked=True),
    action('actionViewPrintIcon', 'Print', checkable=True, checked=True),
    action('actionViewBackForwardIcons', 'Back & Forward', checkable=True, checked=True),
    action('actionViewAboutIcon', 'About', checkable=True, checked=True),
]


def tile(i):
    r, c = divmod(i, 9)
    return (f'<widget class="Tile" name="tile{i:02d}">' + rect(3 + 60 * (c % 3), 3 + 60 * (r % 3), 60, 60)
            + policy('Expanding', 'Expanding') + size('minimumSize', 60, 60)
            + prop('index', f'<number>{i}</number>', stdset=False) + '</widget>')


def frame(square):
    x = 7 + 183 * (square % 3)
    y = 6 + 183 * (square // 3)
    cells = [i for i in range(81) if (i // 9 // 3) * 3 + (i % 9) // 3 == square]
    return (f'<widget class="QFrame" name="frame_{square + 1}">' + rect(x, y, 187, 187)
            + prop('frameShape', '<enum>QFrame::Panel</enum>') + prop('frameShadow', '<enum>QFrame::Plain</enum>')
            + prop('lineWidth', '<number>3</number>') + prop('midLineWidth', '<number>0</number>')
            + ''.join(tile(i) for i in cells) + '</widget>')


def spacer(name, w, h, hp, vp, orient):
    return (f'<spacer name="{name}">' + prop('orientation', f'<enum>Qt::{orient}</enum>')
            + prop('sizeType', f'<enum>QSizePolicy::{hp if orient == "Horizontal" else vp}</enum>')
            + size('sizeHint', w, h) + '</spacer>')


board = ('<widget class="QWidget" name="boardWidget">' + policy('Fixed', 'Fixed')
         + size('minimumSize', 567, 590) + size('maximumSize', 567, 590) + size('baseSize', 567, 590)
         + string('styleSheet', 'background-color: rgb(231, 231, 231);', notr=True)
         + '<widget class="QLabel" name="txtLevel">' + rect(7, 564, 110, 16) + string('text', 'Start a new game') + '</widget>'
         + ''.join(frame(s) for s in range(9)) + '</widget>')

central = ('<widget class="QWidget" name="centralWidget">'
           + string('styleSheet', 'background-color: rgb(255, 255, 255);', notr=True)
           + '<layout class="QGridLayout" name="gridLayout">'
           + prop('spacing', '<number>6</number>')
           + ''.join(prop(m, '<number>11</number>') for m in ('leftMargin', 'topMargin', 'rightMargin', 'bottomMargin'))
           + '<item row="0" column="1">' + spacer('verticalSpacer', 20, 5, 'Minimum', 'Preferred', 'Vertical') + '</item>'
           + '<item row="1" column="0">' + spacer('horizontalSpacer', 5, 20, 'Preferred', 'Minimum', 'Horizontal') + '</item>'
           + '<item row="1" column="1">' + board + '</item>'
           + '<item row="1" column="2">' + spacer('horizontalSpacer_2', 5, 20, 'Preferred', 'Minimum', 'Horizontal') + '</item>'
           + '<item row="2" column="1">' + spacer('verticalSpacer_2', 20, 5, 'Minimum', 'Preferred', 'Vertical') + '</item>'
           + '</layout></widget>')


def menu(name, title, entries, extra=''):
    return (f'<widget class="QMenu" name="{name}">' + string('title', title) + extra
            + ''.join(e if e.startswith('<widget') else f'<addaction name="{e}"/>' for e in entries) + '</widget>')


new_game = menu('menu_New_Game', '&New Game', ['actionNewGameCompleted', 'actionNewGameVeryEasy', 'actionNewGameEasy',
                                               'actionNewGameMedium', 'actionNewGameHard', 'separator', 'actionNewGameUserEdit'])
toolbar_items = menu('menuToolbarItems', 'Toolbar Items', ['actionViewNewGameIcons', 'actionViewOpenSaveIcons', 'actionViewPrintIcon',
                                                            'actionViewBackForwardIcons', 'actionViewAboutIcon'],
                     extra=prop('enabled', '<bool>false</bool>'))
game_menu = menu('menuGame', '&Game', [new_game, 'menu_New_Game', 'separator', 'actionOpenGame', 'actionSaveGame', 'separator',
                                       'actionPrint', 'separator', 'actionMakeMove', 'actionRetractMove', 'separator', 'actionExit'])
view_menu = menu('menu_View', '&View', [toolbar_items, 'menuToolbarItems', 'separator', 'actionViewPencilMarks',
                                        'actionViewPencilMarksOptions', 'separator', 'actionViewToolbar', 'actionViewStatusbar', 'separator'])
help_menu = menu('menu_Help', '&Help', ['actionAbout'])

menubar = ('<widget class="QMenuBar" name="menuBar">' + rect(0, 0, 609, 21)
           + prop('contextMenuPolicy', '<enum>Qt::NoContextMenu</enum>')
           + game_menu + view_menu + help_menu
           + '<addaction name="menuGame"/><addaction name="menu_View"/><addaction name="menu_Help"/></widget>')

toolbar = ('<widget class="QToolBar" name="mainToolBar">' + string('windowTitle', 'Main Toolbar')
           + prop('contextMenuPolicy', '<enum>Qt::NoContextMenu</enum>') + size('iconSize', 32, 32)
           + prop('toolButtonStyle', '<enum>Qt::ToolButtonFollowStyle</enum>')
           + '<attribute name="toolBarArea"><enum>TopToolBarArea</enum></attribute>'
           + '<attribute name="toolBarBreak"><bool>false</bool></attribute>'
           + ''.join(f'<addaction name="{a}"/>' for a in ['actionNewGameVeryEasy', 'actionNewGameEasy', 'actionNewGameMedium',
                                                           'actionNewGameHard', 'separator', 'actionOpenGame', 'actionSaveGame',
                                                           'separator', 'actionPrint', 'separator', 'actionRetractMove',
                                                           'actionMakeMove', 'separator', 'actionAbout'])
           + '</widget>')

statusbar = '<widget class="QStatusBar" name="statusBar">' + prop('sizeGripEnabled', '<bool>false</bool>') + '</widget>'

# 8 points: at 9 points "difficulty: Very Easy" (118 px) no longer fits the 110 px of txtLevel.
window = ('<widget class="QMainWindow" name="SudokuWindowClass">' + rect(0, 0, 609, 709) + policy('Fixed', 'Fixed')
          + size('baseSize', 593, 695) + prop('font', '<font><pointsize>8</pointsize></font>')
          + prop('contextMenuPolicy', '<enum>Qt::NoContextMenu</enum>')
          + string('windowTitle', 'Sudoku Vantu', notr=True) + central + menubar + toolbar + statusbar + ''.join(ACTIONS) + '</widget>')

CONNECTIONS = [
    ('actionOpenGame', 'triggered()', 'openGame()'), ('actionSaveGame', 'triggered()', 'saveGame()'),
    ('actionPrint', 'triggered()', 'printGame()'), ('actionRetractMove', 'triggered()', 'retractMove()'),
    ('actionMakeMove', 'triggered()', 'makeMove()'), ('actionAbout', 'triggered()', 'about()'),
    ('actionNewGameCompleted', 'triggered()', 'newGameCompleted()'), ('actionNewGameVeryEasy', 'triggered()', 'newGameVeryEasy()'),
    ('actionNewGameEasy', 'triggered()', 'newGameEasy()'), ('actionNewGameMedium', 'triggered()', 'newGameMedium()'),
    ('actionNewGameHard', 'triggered()', 'newGameHard()'), ('actionNewGameUserEdit', 'triggered()', 'newGameUserEdit()'),
    ('actionViewToolbar', 'triggered(bool)', 'viewToolbar(bool)'), ('actionViewStatusbar', 'triggered(bool)', 'viewStatusbar(bool)'),
    ('actionViewNewGameIcons', 'triggered(bool)', 'viewNewGameIcons(bool)'),
    ('actionViewOpenSaveIcons', 'triggered(bool)', 'viewOpenSaveIcons(bool)'),
    ('actionViewPrintIcon', 'triggered(bool)', 'viewPrintIcon(bool)'),
    ('actionViewBackForwardIcons', 'triggered(bool)', 'viewBackForwardIcons(bool)'),
    ('actionViewAboutIcon', 'triggered(bool)', 'viewAboutIcon(bool)'),
    ('actionViewPencilMarks', 'triggered(bool)', 'viewPencilMarks(bool)'),
    ('actionViewPencilMarksOptions', 'triggered()', 'viewPencilMarksOptions()'),
    ('actionExit', 'triggered()', 'close()'),
]
connections = ''.join(f'<connection><sender>{s}</sender><signal>{sig}</signal><receiver>SudokuWindowClass</receiver><slot>{slot}</slot></connection>'
                      for s, sig, slot in CONNECTIONS)

custom = '<customwidgets><customwidget><class>Tile</class><extends>QWidget</extends><header>Tile.h</header><container>1</container></customwidget></customwidgets>'

form = ('<?xml version="1.0" encoding="UTF-8"?>\n<ui version="4.0"><class>SudokuWindowClass</class>' + window + custom
       + '<resources><include location="../resources/resources.qrc"/></resources>'
       + '<connections>' + connections + '</connections></ui>')


pretty = xml.dom.minidom.parseString(form.encode('utf-8')).toprettyxml(indent=' ', encoding='UTF-8').decode('utf-8')
with open(OUT, 'w', encoding='utf-8') as f:
    f.write('\n'.join(line for line in pretty.splitlines() if line.strip()) + '\n')
