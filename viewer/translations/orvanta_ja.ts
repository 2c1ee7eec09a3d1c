<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Orvanta</name>
    <message>
        <source>Show the axis cross</source>
        <translation>座標軸を表示</translation>
    </message>
    <message>
        <source>Show the view cube</source>
        <translation>ビューキューブを表示</translation>
    </message>
    <message>
        <source>Open models in perspective</source>
        <translation>モデルを透視投影で開く</translation>
    </message>
    <message>
        <source>Show the model tree</source>
        <translation>モデルツリーを表示</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>&amp;Other colour...</source>
        <translation>その他の色(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;As in the file</source>
        <translation>ファイルの色(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Opaque</source>
        <translation>不透明(&amp;O)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No model has been opened yet</source>
        <translation>まだモデルを開いていません</translation>
    </message>
    <message>
        <source>Open a model</source>
        <translation>モデルを開く</translation>
    </message>
    <message>
        <source>STEP, IGES, BREP, STL, OBJ or glTF. Drop a file here, or choose one.</source>
        <translation>STEP、IGES、BREP、STL、OBJ、glTF。ここにファイルをドロップするか、選択してください。</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近のファイル</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open one of the models opened last</source>
        <translation>最近使用したモデルを開く</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close the model</source>
        <translation>モデルを閉じる</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Save the model in another format</source>
        <translation>モデルを別の形式で保存</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>ビューの画像を保存</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>Show the whole model</source>
        <translation>モデル全体を表示</translation>
    </message>
    <message>
        <source>Fit selection</source>
        <translation>選択部分にフィット</translation>
    </message>
    <message>
        <source>Show the selected parts</source>
        <translation>選択した部品を表示</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Bring the model nearer</source>
        <translation>モデルに近づく</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Move the model away</source>
        <translation>モデルから離れる</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>透視投影</translation>
    </message>
    <message>
        <source>Change between perspective and parallel projection</source>
        <translation>透視投影と平行投影を切り替え</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>正面</translation>
    </message>
    <message>
        <source>Look from the front</source>
        <translation>正面から見る</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>背面</translation>
    </message>
    <message>
        <source>Look from the back</source>
        <translation>背面から見る</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左側面</translation>
    </message>
    <message>
        <source>Look from the left</source>
        <translation>左側から見る</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右側面</translation>
    </message>
    <message>
        <source>Look from the right</source>
        <translation>右側から見る</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>平面</translation>
    </message>
    <message>
        <source>Look from the top</source>
        <translation>上から見る</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底面</translation>
    </message>
    <message>
        <source>Look from below</source>
        <translation>下から見る</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>等角投影</translation>
    </message>
    <message>
        <source>Look from a corner</source>
        <translation>角から見る</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Hide the selected parts</source>
        <translation>選択した部品を非表示</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>分離</translation>
    </message>
    <message>
        <source>Show nothing but the selected parts</source>
        <translation>選択した部品だけを表示</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <translation>すべての部品を表示</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Colour the selected parts</source>
        <translation>選択した部品に色を付ける</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Make the selected parts transparent</source>
        <translation>選択した部品を透明にする</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Move the selected parts</source>
        <translation>選択した部品を移動</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Undo all hiding, colouring, transparency and moving</source>
        <translation>非表示、色、透明度、移動をすべて元に戻す</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Select the whole model</source>
        <translation>モデル全体を選択</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>選択解除</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <translation>選択を解除</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Change the options</source>
        <translation>オプションを変更</translation>
    </message>
    <message>
        <source>Model tree</source>
        <translation>モデルツリー</translation>
    </message>
    <message>
        <source>Show or hide the model tree</source>
        <translation>モデルツリーの表示/非表示</translation>
    </message>
    <message>
        <source>Side bar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>Show or hide the side bar</source>
        <translation>サイドバーの表示/非表示</translation>
    </message>
    <message>
        <source>Next pane</source>
        <translation>次のペイン</translation>
    </message>
    <message>
        <source>Go round from the model tree to the view, the side bar and the ribbon</source>
        <translation>モデルツリー、ビュー、サイドバー、リボンを順に移動する</translation>
    </message>
    <message>
        <source>Previous pane</source>
        <translation>前のペイン</translation>
    </message>
    <message>
        <source>Go round the other way</source>
        <translation>逆の順に移動する</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Back to start</source>
        <translation>元の位置に戻す(&amp;B)</translation>
    </message>
    <message>
        <source>Model view</source>
        <translation>モデルビュー</translation>
    </message>
    <message>
        <source>The model can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>モデルを描画できません。OpenGL に対応した画面がありません。</translation>
    </message>
    <message>
        <source>Find a part</source>
        <translation>部品を検索</translation>
    </message>
    <message>
        <source>No model</source>
        <translation>モデルなし</translation>
    </message>
    <message>
        <source>This pane is shown in a window of its own. Close that window to bring it back.</source>
        <translation>このペインは別のウィンドウに表示されています。戻すには、そのウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>Show this pane in a window of its own</source>
        <translation>このペインを別のウィンドウに表示</translation>
    </message>
    <message>
        <source>Keep the side bar open</source>
        <translation>サイドバーを開いたままにする</translation>
    </message>
    <message>
        <source>Hide the side bar while it is not used</source>
        <translation>使用しないときはサイドバーを隠す</translation>
    </message>
    <message>
        <source>Show the panels before</source>
        <translation>前のパネルを表示</translation>
    </message>
    <message>
        <source>Show the panels after</source>
        <translation>次のパネルを表示</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>View</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>Standard views</source>
        <translation>標準ビュー</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>部品</translation>
    </message>
    <message>
        <source>The picture can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>画像を描画できません。OpenGL に対応した画面がありません。</translation>
    </message>
    <message>
        <source>There is nothing to draw. Open a model first.</source>
        <translation>描画するものがありません。先にモデルを開いてください。</translation>
    </message>
    <message>
        <source>No exporter is installed. Install Orvanta again and start it anew.</source>
        <translation>エクスポート機能がインストールされていません。Orvanta を再インストールして起動し直してください。</translation>
    </message>
    <message>
        <source>The action was broken off by an unexpected error. Try again.</source>
        <translation>予期しないエラーにより操作が中断されました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;... Press Esc to stop.</source>
        <translation>「%1」を開いています... Esc で中止します。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>The system&apos;s language</source>
        <translation>システムの言語</translation>
    </message>
    <message>
        <source>The new language is used when Orvanta is started again.</source>
        <translation>新しい言語は Orvanta を次に起動したときに使用されます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t exist. Check the path or choose another file.</source>
        <translation>「%1」は存在しません。パスを確認するか、別のファイルを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a model file in it.</source>
        <translation>「%1」はフォルダーです。その中のモデルファイルを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a type that can&apos;t be opened. Open STEP, IGES, BREP, STL, OBJ, glTF or Orvanta files.</source>
        <translation>「%1」は開けない種類のファイルです。STEP、IGES、BREP、STL、OBJ、glTF、Orvanta のファイルを開いてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read. Check that you may read it and that it isn&apos;t in use.</source>
        <translation>「%1」を読み取れません。読み取り権限があり、使用中でないことを確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Export the model again and open the new file.</source>
        <translation>「%1」は空です。モデルをもう一度エクスポートして、新しいファイルを開いてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends too early: a part of it is missing. Copy or export the file again.</source>
        <translation>「%1」は途中で終わっており、一部が欠けています。ファイルをもう一度コピーまたはエクスポートしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t what its ending says. Check the file, or export the model again.</source>
        <translation>「%1」の内容が拡張子と一致しません。ファイルを確認するか、モデルをもう一度エクスポートしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: its content is damaged. Export the model again and open the new file.</source>
        <translation>「%1」を読み取れません。内容が破損しています。モデルをもう一度エクスポートして、新しいファイルを開いてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t whole: entries that others refer to are missing. Copy or export the file again.</source>
        <translation>「%1」は不完全です。他から参照されている項目がありません。ファイルをもう一度コピーまたはエクスポートしてください。</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot; was stopped.</source>
        <translation>「%1」を開く操作を中止しました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no part with surfaces. Export the model with its solids and open the new file.</source>
        <translation>「%1」にはサーフェスを持つ部品がありません。ソリッドを含めてモデルをエクスポートし、新しいファイルを開いてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than there is. Close other programs and try again.</source>
        <translation>「%1」を開くにはメモリが足りません。他のプログラムを閉じてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened. Check the file and try again.</source>
        <translation>「%1」を開けません。ファイルを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>「%1」を開きました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved.</source>
        <translation>「%1」を保存しました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is a folder. Choose a name for the file.</source>
        <translation>「%1」に書き込めません。フォルダーです。ファイル名を選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its folder doesn&apos;t exist. Choose another folder.</source>
        <translation>「%1」に書き込めません。フォルダーが存在しません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is protected against writing. Choose another name.</source>
        <translation>「%1」に書き込めません。書き込み禁止です。別の名前を選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: you may not write to its folder. Choose another folder.</source>
        <translation>「%1」に書き込めません。フォルダーへの書き込み権限がありません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the disk is full. Make room, or choose another disk.</source>
        <translation>「%1」に書き込めません。ディスクがいっぱいです。空き容量を増やすか、別のディスクを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk is read-only. Choose another disk.</source>
        <translation>「%1」に書き込めません。ディスクが読み取り専用です。別のディスクを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: your quota is used up. Make room, or choose another disk.</source>
        <translation>「%1」に書き込めません。割り当て容量を使い切っています。空き容量を増やすか、別のディスクを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk takes no file of this size. Choose another disk.</source>
        <translation>「%1」に書き込めません。ディスクがこのサイズのファイルに対応していません。別のディスクを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its name is too long. Choose a shorter name.</source>
        <translation>「%1」に書き込めません。名前が長すぎます。短い名前を選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the path of its folder is too long. Choose a folder with a shorter path.</source>
        <translation>「%1」に書き込めません。フォルダーのパスが長すぎます。パスの短いフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the memory is full. Close other programs and try again.</source>
        <translation>「%1」に書き込めません。メモリが不足しています。他のプログラムを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: the model is too large for this format. Choose another format.</source>
        <translation>「%1」を保存できません。モデルが大きすぎてこの形式では表せません。別の形式を選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and the free space, or choose another place.</source>
        <translation>「%1」に書き込めません。フォルダーと空き容量を確認するか、別の場所を選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and that the name ends in .png or .jpg.</source>
        <translation>「%1」に書き込めません。フォルダーと、名前が .png または .jpg で終わることを確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: its exporter isn&apos;t installed. Choose another format.</source>
        <translation>「%1」を保存できません。エクスポート機能がインストールされていません。別の形式を選択してください。</translation>
    </message>
    <message>
        <source>There is nothing to save in this format. Open a model with parts first.</source>
        <translation>この形式で保存するものがありません。先に部品のあるモデルを開いてください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is missing. Install Orvanta again and start it anew.</source>
        <translation>ライブラリ「%1」がありません。Orvanta を再インストールして起動し直してください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; lacks the function &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>ライブラリ「%1」に関数「%2」がありません。Orvanta を再インストールして起動し直してください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no plug-in. The viewer works on without it; install the plug-in again to get it back.</source>
        <translation>ライブラリ「%1」はプラグインを作成しませんでした。ビューアーはプラグインなしで動作します。元に戻すには、プラグインを再インストールしてください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no object. Install Orvanta again and start it anew.</source>
        <translation>ライブラリ「%1」はオブジェクトを作成しませんでした。Orvanta を再インストールして起動し直してください。</translation>
    </message>
    <message>
        <source>The display offers no OpenGL. Install a graphics driver, or Mesa&apos;s software one.</source>
        <translation>画面が OpenGL に対応していません。グラフィックスドライバー、または Mesa のソフトウェアドライバーをインストールしてください。</translation>
    </message>
    <message>
        <source>There is no display to draw on. Start the viewer from a desktop session.</source>
        <translation>描画する画面がありません。デスクトップセッションからビューアーを起動してください。</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>青緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>濃い灰色</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; can't be loaded: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>ライブラリ「%1」を読み込めません（「%2」）。Orvanta を再インストールして起動し直してください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>ライブラリ「%1」を開始できませんでした（「%2」）。Orvanta を再インストールして起動し直してください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start. Install Orvanta again and start it anew.</source>
        <translation>ライブラリ「%1」を開始できませんでした。Orvanta を再インストールして起動し直してください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end: &quot;%2&quot;. Save your work and start Orvanta anew.</source>
        <translation>ライブラリ「%1」を正常に終了できませんでした（「%2」）。作業内容を保存して Orvanta を起動し直してください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end. Save your work and start Orvanta anew.</source>
        <translation>ライブラリ「%1」を正常に終了できませんでした。作業内容を保存して Orvanta を起動し直してください。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is no plug-in for the viewer's windows. Move it out of the folder &quot;%2&quot;.</source>
        <translation>ライブラリ「%1」はビューアーのウィンドウ用のプラグインではありません。フォルダー「%2」から移動してください。</translation>
    </message>
    <message>
        <source>The picture can't be drawn on this display. Check the graphics driver.</source>
        <translation>この画面では画像を描画できません。グラフィックスドライバーを確認してください。</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can't be written. Check the folder and that it ends in .png or .jpg.</source>
        <translation>画像「%1」を書き込めません。フォルダーと、名前が .png または .jpg で終わることを確認してください。</translation>
    </message>
    <message>
        <source>There is no display to draw on. Install &quot;%1&quot; or start the viewer from a desktop session.</source>
        <translation>描画する画面がありません。「%1」をインストールするか、デスクトップセッションからビューアーを起動してください。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln part(s)</source>
        <translation>
            <numerusform>%Ln 部品</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangle(s)</source>
        <translation>
            <numerusform>%Ln 三角形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln 選択</numerusform>
        </translation>
    </message>
    <message>
        <source>Only one model can be opened at a time. Give one file.</source>
        <translation>一度に開けるモデルは 1 つだけです。ファイルを 1 つ指定してください。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; isn't known. Use --help to see all options.</source>
        <translation>オプション「%1」はありません。--help ですべてのオプションを表示できます。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value. Use --help to see all options.</source>
        <translation>オプション「%1」には値が必要です。--help ですべてのオプションを表示できます。</translation>
    </message>
    <message>
        <source>The language must be a code of two letters, such as &quot;%1&quot;.</source>
        <translation>言語は「%1」のような 2 文字のコードで指定してください。</translation>
    </message>
    <message>
        <source>There is nothing to export or draw. Give a model file, too.</source>
        <translation>エクスポートまたは描画するものがありません。モデルファイルも指定してください。</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it from a desktop session, or use --export or --screenshot.</source>
        <translation>ウィンドウを開く画面がありません。デスクトップセッションから起動するか、--export または --screenshot を使用してください。</translation>
    </message>
    <message>
        <source>Usage: orvanta [FILE] [OPTION]...</source>
        <translation>使い方：orvanta [FILE] [OPTION]...</translation>
    </message>
    <message>
        <source>Views and reviews 3D CAD models: STEP, IGES, BREP, STL, OBJ and glTF.</source>
        <translation>3D CAD モデルの表示とレビュー：STEP、IGES、BREP、STL、OBJ、glTF。</translation>
    </message>
    <message>
        <source>address of the cloud service</source>
        <translation>クラウドサービスのアドレス</translation>
    </message>
    <message>
        <source>where the user's data lies</source>
        <translation>ユーザーデータのフォルダー</translation>
    </message>
    <message>
        <source>language, two letters: en, fr, de, ja, ko, zh, es or pt</source>
        <translation>言語（2 文字：en、fr、de、ja、ko、zh、es、pt）</translation>
    </message>
    <message>
        <source>write FILE to OUT in the format of its ending and exit; may be repeated</source>
        <translation>FILE を OUT の拡張子の形式で書き込んで終了（複数指定可）</translation>
    </message>
    <message>
        <source>draw FILE to a picture (.png, .jpg) and exit</source>
        <translation>FILE を画像（.png、.jpg）に描画して終了</translation>
    </message>
    <message>
        <source>show this text and exit</source>
        <translation>このテキストを表示して終了</translation>
    </message>
    <message>
        <source>show the version and exit</source>
        <translation>バージョンを表示して終了</translation>
    </message>
</context>
</TS>
