// Resource and command identifiers. The same number may name a resource, a command and a control: the kinds
// are apart.
#pragma once

// strings
#define IDS_TITLE 1
#define IDS_HIDE 3
#define IDS_MENU 4
#define IDS_BLANK 5
#define IDS_DONE 6
#define IDS_OK 103
// The same texts once more for the menu bars: the shell takes a bar's strings with ids below 100 from its own
// module.
#define IDS_BAR_HIDE 203
#define IDS_BAR_MENU 204
#define IDS_BAR_BLANK 205
#define IDS_BAR_DONE 206
#define IDS_BAR_SELECT 207
#define IDS_BAR_CANCEL 208

// icon of the program
#define IDI_PROGRAM 101

// menu bars (RCDATA) and the menus behind their right soft key
#define IDB_TASKS 172
#define IDB_SYSINFO 111
#define IDB_START 174
#define IDB_PROCS 171
#define IDB_INFORMATION 170
#define IDB_WINDOWS 173
#define IDB_KEYS 169
#define IDB_SELECT_APP 177
#define IDM_TASKS 134
#define IDM_SYSINFO 102
#define IDM_START 136
#define IDM_PROCS 132
#define IDM_WINDOWS 173

// accelerator tables
#define IDA_PROGRAM 2
#define IDA_TASKS 33593
#define IDA_SYSINFO 33594
#define IDA_START 137
#define IDA_PROCS 33595
#define IDA_INFORMATION 115
#define IDA_KEYS 143

// dialog templates
#define IDD_INFORMATION 125
#define IDD_WINDOWS 133
#define IDD_KEYS 142
#define IDD_KEYS_SP 144 // of a Smartphone

// controls
#define IDC_LIST 110
#define IDC_INFORMATION_TEXT 126
#define IDC_SEARCH 175
#define IDC_WINDOWS_TREE 1000
#define IDC_KEY_LIST 1005
#define IDC_PRESS_ACTION 1006
#define IDC_HOME_ACTION 1006 // of a Smartphone's only list
#define IDC_HOLD_ACTION 1007
#define IDC_PRESS_LABEL 1008
#define IDC_HOLD_LABEL 1009

// commands shared by the pages
#define CMD_HIDE 112
#define CMD_MENU 113
#define CMD_ACTIVATE_ITEM 114
#define CMD_ABOUT 32771
#define CMD_EXIT 32773
#define CMD_PREVIOUS_PAGE 32774
#define CMD_NEXT_PAGE 32775
#define CMD_REFRESH 32793
#define CMD_SHOW_TASKS 32796
#define CMD_SHOW_SYSINFO 32797
#define CMD_SHOW_PROCS 32798
#define CMD_SHOW_START 32803
#define CMD_SETTINGS 32813
#define CMD_HARDWARE_KEYS 32814
#define CMD_CLOSE_ALL 32816

// commands of the pages
#define CMD_MEMORY_INFORMATION 32785
#define CMD_BATTERY_INFORMATION 32786
#define CMD_ROW_ABOVE 32787
#define CMD_ROW_BELOW 32788
#define CMD_PROCESS_DETAILS 32790
#define CMD_END_PROCESS 32791
#define CMD_WINDOWS_LIST 32792
#define CMD_APPLICATION_INFO 32799
#define CMD_CLOSE_APPLICATION 32800
#define CMD_SWITCH_TO_APPLICATION 32801
#define CMD_START_APPLICATION 32801 // of the launcher, which has none to switch to
#define CMD_LAST_ROW 32805
#define CMD_FIRST_ROW 32806
#define CMD_PAGE_DOWN 32807
#define CMD_PAGE_UP 32808
#define CMD_WINDOW_INFO 0x8022

// commands of the dialogs
#define CMD_DIALOG_ACTION 6
#define CMD_TEXT_DOWN 116
#define CMD_TEXT_LEFT 117
#define CMD_TEXT_RIGHT 118
#define CMD_TEXT_TAB 119
#define CMD_TEXT_UP 120
#define CMD_TEXT_ENTER 121
#define CMD_SHOW_KEY 176
