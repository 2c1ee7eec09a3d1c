#include "cloud/api/WelcomePage.h"

namespace orvcloud
{

Answer welcomePage()
{
    Answer answer;
    answer.contentType = "text/html; charset=utf-8";
    answer.headers.emplace_back("Content-Security-Policy", "default-src 'none'; style-src 'unsafe-inline'");
    answer.headers.emplace_back("Referrer-Policy", "no-referrer");
    answer.body = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Orvanta Cloud</title>
<style>
body { font: 16px/1.5 system-ui, sans-serif; max-width: 36em; margin: 4em auto; padding: 0 1em; color: #222; }
h1 { font-size: 1.4em; }
@media (prefers-color-scheme: dark) { body { background: #1c1c1e; color: #ddd; } }
</style>
</head>
<body>
<h1>A model has been shared with you</h1>
<ol>
<li>Open Orvanta and sign in to Orvanta Cloud with the address that the invitation was sent to.</li>
<li>Open your copy of the model's file, under the name that the invitation gives.</li>
<li>The feed at the side shows the model's comments. Click one to see what its author saw, or add your own.</li>
</ol>
<p>You have no account yet, or no copy of the file? Ask the person who invited you.</p>
</body>
</html>
)";
    return answer;
}

} // namespace orvcloud
