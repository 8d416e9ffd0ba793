#pragma once

namespace zelto::simulator {

class Story;

/// A user logs in to a drive and logs off again; then the clock, and the drive that has expired.
void playLogInStory(Story& story);
/// A new drive is set up, logged in to, changed, erased, cleared and set up anew.
void playSetUpStory(Story& story);

} // namespace zelto::simulator
