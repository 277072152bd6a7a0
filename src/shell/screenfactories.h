#pragma once

class MdiMain;
class MessageBoxes;
struct Session;

/// Makes every screen of the subsystems known to the main window's menu under its objectName.
/// The main window itself knows none of them, so that it can sit above them all.
void registerScreens(MdiMain &window, Session &session, MessageBoxes &boxes);
