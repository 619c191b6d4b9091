-- TarvoEiwa script for Microsoft Outlook, in readable form.
-- It opens the manager (creator code tSM8) on its style pane.

on run
    tell application id "tSM8" to activate
end run
