<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>ApplyFailure</name>
    <message>
        <source>You may not change this folder. Give yourself write permission in the folder&apos;s properties, or ask its owner.</source>
        <translation>このフォルダーを変更する権限がありません。フォルダーのプロパティで書き込み権限を付けるか、所有者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The disk cannot be written to. Remove its write protection, or copy the folder to another disk and brand the copy.</source>
        <translation>ディスクに書き込めません。書き込み禁止を解除するか、フォルダーを別のディスクにコピーしてコピーの方を使ってください。</translation>
    </message>
    <message>
        <source>There is no room left. Delete something on this disk and try again.</source>
        <translation>空き容量がありません。このディスクから何かを削除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The disk does not work as it should. Make sure that it is connected, and copy what matters to another one.</source>
        <translation>ディスクが正しく動作していません。接続を確認し、大切なものは別のディスクにコピーしてください。</translation>
    </message>
    <message>
        <source>The file server does not answer. Connect to it anew, open the folder and try again.</source>
        <translation>ファイルサーバーが応答しません。接続し直し、フォルダーを開いてもう一度お試しください。</translation>
    </message>
    <message>
        <source>The path is too long. Move the folder to a place with a shorter path.</source>
        <translation>パスが長すぎます。パスが短くなる場所にフォルダーを移動してください。</translation>
    </message>
    <message>
        <source>The computer is short of memory. Close other programs and try again.</source>
        <translation>メモリーが不足しています。ほかのプログラムを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The folder is no longer there. It may have been moved or renamed: open it anew.</source>
        <translation>フォルダーが見つからなくなりました。移動されたか名前が変わった可能性があります。開き直してください。</translation>
    </message>
    <message>
        <source>Something is in the way that is not ours to touch. Move it away, or wait until the other program is done, and try again.</source>
        <translation>Quorvane が触れてはならないものが妨げになっています。それを移動するか、ほかのプログラムが終わるのを待って、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The disk cannot keep an icon with a folder. Move the folder to another disk.</source>
        <translation>このディスクではフォルダーにアイコンを付けられません。フォルダーを別のディスクに移動してください。</translation>
    </message>
    <message>
        <source>The item named above cannot be used. Choose another picture, or move the item away, and try again.</source>
        <translation>上記の項目は使えません。別の画像を選ぶか、その項目を移動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This should not happen. Please report it, with the text above.</source>
        <translation>起こるはずのない問題です。上記のテキストを添えて報告してください。</translation>
    </message>
    <message>
        <source>Make sure that the folder can be changed, and try again.</source>
        <translation>フォルダーを変更できることを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <translation>理由: %1</translation>
    </message>
    <message>
        <source>The icon of the folder %1 could not be set.</source>
        <translation>フォルダー %1 のアイコンを設定できませんでした。</translation>
    </message>
    <message>
        <source>The former icon of the folder %1 could not be put back.</source>
        <translation>フォルダー %1 の以前のアイコンを復元できませんでした。</translation>
    </message>
</context>
<context>
    <name>BuiltinLibrary</name>
    <message>
        <source>Soft Folders</source>
        <translation>ソフトフォルダー</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Sky Blue</source>
        <translation>空色</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>青緑</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>黄緑</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>藍</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>グラファイト</translation>
    </message>
    <message>
        <source>Crisp Folders</source>
        <translation>くっきりフォルダー</translation>
    </message>
    <message>
        <source>Classic Folders</source>
        <translation>古典的フォルダー</translation>
    </message>
    <message>
        <source>Dark Folders</source>
        <translation>ダークフォルダー</translation>
    </message>
    <message>
        <source>Outlined Folders</source>
        <translation>線画フォルダー</translation>
    </message>
    <message>
        <source>Open Folders</source>
        <translation>開いたフォルダー</translation>
    </message>
    <message>
        <source>Emblems</source>
        <translation>エンブレム</translation>
    </message>
    <message>
        <source>Colourful Emblems</source>
        <translation>多色エンブレム</translation>
    </message>
    <message>
        <source>More Emblems</source>
        <translation>その他のエンブレム</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>買い物</translation>
    </message>
    <message>
        <source>Things</source>
        <translation>いろいろな物</translation>
    </message>
    <message>
        <source>Cardboard Box</source>
        <translation>段ボール箱</translation>
    </message>
    <message>
        <source>Open Box</source>
        <translation>開いた箱</translation>
    </message>
    <message>
        <source>Archive Box</source>
        <translation>書類保存箱</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>書類の束</translation>
    </message>
    <message>
        <source>Notepad</source>
        <translation>メモ帳</translation>
    </message>
    <message>
        <source>Notebook</source>
        <translation>ノート</translation>
    </message>
    <message>
        <source>Binder</source>
        <translation>バインダー</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>封筒</translation>
    </message>
    <message>
        <source>Briefcase</source>
        <translation>書類かばん</translation>
    </message>
    <message>
        <source>Hard Disk</source>
        <translation>ハードディスク</translation>
    </message>
    <message>
        <source>Portable Drive</source>
        <translation>ポータブルドライブ</translation>
    </message>
    <message>
        <source>Memory Card</source>
        <translation>メモリーカード</translation>
    </message>
    <message>
        <source>USB Stick</source>
        <translation>USB メモリー</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>ディスク</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>white</source>
        <translation>白</translation>
    </message>
    <message>
        <source>red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>, %1% opaque</source>
        <translation>、不透明度 %1%</translation>
    </message>
</context>
<context>
    <name>DroppedFolder</name>
    <message>
        <source>Only a folder can be dropped here.</source>
        <translation>ここにはフォルダーだけをドロップできます。</translation>
    </message>
    <message>
        <source>Only one folder can be dropped at a time.</source>
        <translation>一度にドロップできるフォルダーは 1 つだけです。</translation>
    </message>
    <message>
        <source>Only folders on this computer can be dropped here.</source>
        <translation>ここにはこのコンピューター上のフォルダーだけをドロップできます。</translation>
    </message>
    <message>
        <source>The folder dropped does not exist.</source>
        <translation>ドロップされたフォルダーは存在しません。</translation>
    </message>
    <message>
        <source>Only a folder can be dropped here, not a file.</source>
        <translation>ここにドロップできるのはフォルダーだけで、ファイルはドロップできません。</translation>
    </message>
</context>
<context>
    <name>DroppedIcons</name>
    <message>
        <source>Only files, folders and pictures can be added.</source>
        <translation>追加できるのはファイル、フォルダー、画像だけです。</translation>
    </message>
    <message>
        <source>Only files on this computer can be added. Save it first.</source>
        <translation>追加できるのはこのコンピューター上のファイルだけです。先に保存してください。</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>Undo Typing</source>
        <translation>入力を元に戻す</translation>
    </message>
    <message>
        <source>Redo Typing</source>
        <translation>入力をやり直す</translation>
    </message>
    <message>
        <source>Undo Move Label</source>
        <translation>ラベルの移動を元に戻す</translation>
    </message>
    <message>
        <source>Redo Move Label</source>
        <translation>ラベルの移動をやり直す</translation>
    </message>
    <message>
        <source>Undo Font</source>
        <translation>フォントの変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Font</source>
        <translation>フォントの変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Font Size</source>
        <translation>フォントサイズの変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Font Size</source>
        <translation>フォントサイズの変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Colour</source>
        <translation>色の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Colour</source>
        <translation>色の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Effect</source>
        <translation>効果の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Effect</source>
        <translation>効果の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Line Spacing</source>
        <translation>行間の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Line Spacing</source>
        <translation>行間の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Shear</source>
        <translation>傾斜の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Shear</source>
        <translation>傾斜の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Rotation</source>
        <translation>回転の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Rotation</source>
        <translation>回転の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Opacity</source>
        <translation>不透明度の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Opacity</source>
        <translation>不透明度の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Choose Icon</source>
        <translation>アイコンの選択を元に戻す</translation>
    </message>
    <message>
        <source>Redo Choose Icon</source>
        <translation>アイコンの選択をやり直す</translation>
    </message>
    <message>
        <source>Undo Reset</source>
        <translation>リセットを元に戻す</translation>
    </message>
    <message>
        <source>Redo Reset</source>
        <translation>リセットをやり直す</translation>
    </message>
    <message>
        <source>Undo Look</source>
        <translation>プリセットの適用を元に戻す</translation>
    </message>
    <message>
        <source>Redo Look</source>
        <translation>プリセットの適用をやり直す</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Undo Tint</source>
        <translation>色合いの変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Tint</source>
        <translation>色合いの変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Overlay</source>
        <translation>バッジの変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Overlay</source>
        <translation>バッジの変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Move Overlay</source>
        <translation>バッジの移動を元に戻す</translation>
    </message>
    <message>
        <source>Redo Move Overlay</source>
        <translation>バッジの移動をやり直す</translation>
    </message>
    <message>
        <source>Undo Overlay Size</source>
        <translation>バッジのサイズの変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Overlay Size</source>
        <translation>バッジのサイズの変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Overlay Opacity</source>
        <translation>バッジの不透明度の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Overlay Opacity</source>
        <translation>バッジの不透明度の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Overlay Colour</source>
        <translation>バッジの色の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Overlay Colour</source>
        <translation>バッジの色の変更をやり直す</translation>
    </message>
</context>
<context>
    <name>Emblems</name>
    <message>
        <source>Documents</source>
        <translation>書類</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音楽</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Money</source>
        <translation>お金</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>旅行</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>仕事</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Cloud</source>
        <translation>クラウド</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>星</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>ハート</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人々</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Calendar Done</source>
        <translation>カレンダー完了</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Games</source>
        <translation>ゲーム</translation>
    </message>
    <message>
        <source>Science</source>
        <translation>科学</translation>
    </message>
    <message>
        <source>School</source>
        <translation>学校</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>本</translation>
    </message>
    <message>
        <source>Idea</source>
        <translation>アイデア</translation>
    </message>
    <message>
        <source>Brain</source>
        <translation>脳</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>ビルド</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>カート</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>チャット</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時計</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>コーヒー</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>データベース</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>デザイン</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>火</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>旗</translation>
    </message>
    <message>
        <source>Flower</source>
        <translation>花</translation>
    </message>
    <message>
        <source>Leaf</source>
        <translation>葉</translation>
    </message>
    <message>
        <source>Food</source>
        <translation>食べ物</translation>
    </message>
    <message>
        <source>Gift</source>
        <translation>ギフト</translation>
    </message>
    <message>
        <source>Globe</source>
        <translation>地球儀</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>鍵</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Map Pin</source>
        <translation>地図のピン</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>足跡</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>電話</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>飛行機</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>質問</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>レシート</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>ロボット</translation>
    </message>
    <message>
        <source>Rocket</source>
        <translation>ロケット</translation>
    </message>
    <message>
        <source>Shield</source>
        <translation>盾</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>スポーツ</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>太陽</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>ターゲット</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>端末</translation>
    </message>
    <message>
        <source>Ticket</source>
        <translation>チケット</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>木</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>ゴミ箱</translation>
    </message>
    <message>
        <source>Trophy</source>
        <translation>トロフィー</translation>
    </message>
    <message>
        <source>Truck</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Umbrella</source>
        <translation>傘</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>ベル</translation>
    </message>
    <message>
        <source>Bolt</source>
        <translation>稲妻</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>バグ</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>車</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>クリップボード</translation>
    </message>
    <message>
        <source>Crown</source>
        <translation>王冠</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>ダイヤモンド</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>しずく</translation>
    </message>
    <message>
        <source>Eye</source>
        <translation>目</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>フィルム</translation>
    </message>
    <message>
        <source>Headphones</source>
        <translation>ヘッドホン</translation>
    </message>
    <message>
        <source>Laptop</source>
        <translation>ノートパソコン</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>人</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>パズル</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>1 icon</source>
        <translation>1 個のアイコン</translation>
    </message>
    <message numerus="yes">
        <source>%n icons</source>
        <translation>
            <numerusform>%n 個のアイコン</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Looking for a New Version</source>
        <translation>新しいバージョンを確認中</translation>
    </message>
    <message>
        <source>The server has not answered yet.</source>
        <translation>サーバーからまだ応答がありません。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>cannot open folder</source>
        <translation>フォルダーを開けません</translation>
    </message>
    <message>
        <source>cannot open the folder above</source>
        <translation>上のフォルダーを開けません</translation>
    </message>
    <message>
        <source>cannot list folder</source>
        <translation>フォルダーの内容を一覧できません</translation>
    </message>
    <message>
        <source>cannot look at folder</source>
        <translation>フォルダーを調べられません</translation>
    </message>
    <message>
        <source>cannot look at</source>
        <translation>調べられません</translation>
    </message>
    <message>
        <source>cannot read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>cannot write</source>
        <translation>書き込めません</translation>
    </message>
    <message>
        <source>cannot rename</source>
        <translation>名前を変更できません</translation>
    </message>
    <message>
        <source>cannot remove</source>
        <translation>取り除けません</translation>
    </message>
    <message>
        <source>cannot move</source>
        <translation>移動できません</translation>
    </message>
    <message>
        <source>cannot make folder</source>
        <translation>フォルダーを作れません</translation>
    </message>
    <message>
        <source>cannot keep a copy</source>
        <translation>コピーを残せません</translation>
    </message>
    <message>
        <source>cannot set times</source>
        <translation>日時を設定できません</translation>
    </message>
    <message>
        <source>cannot flush folder</source>
        <translation>フォルダーをディスクに書き出せません</translation>
    </message>
    <message>
        <source>cannot lock folder</source>
        <translation>フォルダーをロックできません</translation>
    </message>
    <message>
        <source>cannot read attribute %1</source>
        <translation>属性 %1 を読み取れません</translation>
    </message>
    <message>
        <source>cannot write attribute %1</source>
        <translation>属性 %1 を書き込めません</translation>
    </message>
    <message>
        <source>cannot remove attribute %1</source>
        <translation>属性 %1 を取り除けません</translation>
    </message>
    <message>
        <source>cannot keep the file&apos;s properties</source>
        <translation>ファイルのプロパティを保てません</translation>
    </message>
    <message>
        <source>cannot keep the file&apos;s properties, attribute %1</source>
        <translation>ファイルのプロパティ (属性 %1) を保てません</translation>
    </message>
    <message>
        <source>cannot keep the file&apos;s properties, access list</source>
        <translation>ファイルのプロパティ (アクセス制御リスト) を保てません</translation>
    </message>
    <message>
        <source>cannot give the file to its owner</source>
        <translation>ファイルを所有者に渡せません</translation>
    </message>
    <message>
        <source>a file stands there</source>
        <translation>そこにファイルがあります</translation>
    </message>
    <message>
        <source>a folder stands there</source>
        <translation>そこにフォルダーがあります</translation>
    </message>
    <message>
        <source>a link stands there</source>
        <translation>そこにリンクがあります</translation>
    </message>
    <message>
        <source>a fifo stands there</source>
        <translation>そこに FIFO があります</translation>
    </message>
    <message>
        <source>a socket stands there</source>
        <translation>そこにソケットがあります</translation>
    </message>
    <message>
        <source>a device stands there</source>
        <translation>そこにデバイスがあります</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>リンクです</translation>
    </message>
    <message>
        <source>it is a fifo</source>
        <translation>FIFO です</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>ソケットです</translation>
    </message>
    <message>
        <source>it is a device</source>
        <translation>デバイスです</translation>
    </message>
    <message>
        <source>is no plain file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>what was read back differs</source>
        <translation>読み戻した内容が一致しません</translation>
    </message>
    <message>
        <source>it was changed by somebody else meanwhile</source>
        <translation>その間にほかから変更されました</translation>
    </message>
    <message>
        <source>nested too deep</source>
        <translation>入れ子が深すぎます</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>そこに別のファイルシステムがマウントされています</translation>
    </message>
    <message>
        <source>the folder was opened for looking only</source>
        <translation>フォルダーは閲覧専用で開かれています</translation>
    </message>
    <message>
        <source>does not hold the folder any more</source>
        <translation>このフォルダーはもう入っていません</translation>
    </message>
    <message>
        <source>has no folder above it</source>
        <translation>上のフォルダーがありません</translation>
    </message>
    <message>
        <source>the folder was moved meanwhile</source>
        <translation>その間にフォルダーが移動されました</translation>
    </message>
    <message>
        <source>another program is changing this folder</source>
        <translation>ほかのプログラムがこのフォルダーを変更しています</translation>
    </message>
    <message>
        <source>interrupted while another program is changing this folder</source>
        <translation>ほかのプログラムがこのフォルダーを変更している間に中断されました</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>中断されました</translation>
    </message>
    <message>
        <source>the user has no home folder</source>
        <translation>ユーザーにホームフォルダーがありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos;</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>empty name</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>&quot;.&quot; and &quot;..&quot; are no names of items</source>
        <translation>「.」と「..」は項目の名前にできません</translation>
    </message>
    <message>
        <source>name with a slash</source>
        <translation>名前にスラッシュが含まれています</translation>
    </message>
    <message>
        <source>name with a zero byte</source>
        <translation>名前にゼロバイトが含まれています</translation>
    </message>
    <message>
        <source>name of %1 bytes, at most %2 are possible</source>
        <translation>名前が %1 バイトあります。使えるのは %2 バイトまでです</translation>
    </message>
    <message>
        <source>name of %1 bytes is too long for a companion file</source>
        <translation>%1 バイトの名前は付属ファイルには長すぎます</translation>
    </message>
    <message>
        <source>path with a zero byte</source>
        <translation>パスにゼロバイトが含まれています</translation>
    </message>
    <message>
        <source>the path names no file</source>
        <translation>パスがファイルを指していません</translation>
    </message>
    <message>
        <source>an absolute path leads out of the folder</source>
        <translation>絶対パスはフォルダーの外を指します</translation>
    </message>
    <message>
        <source>the path names no file in the folder</source>
        <translation>パスがフォルダー内のファイルを指していません</translation>
    </message>
    <message>
        <source>the path leads out of the folder</source>
        <translation>パスがフォルダーの外を指しています</translation>
    </message>
    <message>
        <source>the root of the file system is not branded</source>
        <translation>ファイルシステムのルートにはアイコンを付けません</translation>
    </message>
    <message>
        <source>the system&apos;s own folders are not branded</source>
        <translation>システムのフォルダーにはアイコンを付けません</translation>
    </message>
    <message>
        <source>what is kept of an icon&apos;s folder is not branded</source>
        <translation>フォルダーアイコンのために保管されたものにはアイコンを付けません</translation>
    </message>
    <message>
        <source>the folder of all homes is not branded</source>
        <translation>全ユーザーのホームが入ったフォルダーにはアイコンを付けません</translation>
    </message>
    <message>
        <source>a link stands where the icon&apos;s own file belongs</source>
        <translation>アイコンのファイルを置く場所にリンクがあります</translation>
    </message>
    <message>
        <source>a folder stands where the icon&apos;s own file belongs</source>
        <translation>アイコンのファイルを置く場所にフォルダーがあります</translation>
    </message>
    <message>
        <source>no plain file stands where the icon&apos;s own file belongs</source>
        <translation>アイコンのファイルを置く場所に通常のファイルでないものがあります</translation>
    </message>
    <message>
        <source>there is no picture of its kind</source>
        <translation>この種類の画像がありません</translation>
    </message>
    <message>
        <source>there is no picture to make an icon of</source>
        <translation>アイコンにする画像がありません</translation>
    </message>
    <message>
        <source>there is no icon of its kind</source>
        <translation>この種類のアイコンがありません</translation>
    </message>
    <message>
        <source>its icon holds no picture</source>
        <translation>アイコンに画像がありません</translation>
    </message>
    <message>
        <source>the icon&apos;s picture is missing</source>
        <translation>アイコンの画像がありません</translation>
    </message>
    <message>
        <source>nothing was composed</source>
        <translation>何も合成されませんでした</translation>
    </message>
    <message>
        <source>holds no record of what was there before</source>
        <translation>以前の状態の記録がありません</translation>
    </message>
    <message>
        <source>is damaged, or was written by a newer version</source>
        <translation>破損しているか、新しいバージョンで書かれています</translation>
    </message>
    <message>
        <source>stands in the way; it is not a record of ours</source>
        <translation>妨げになっています。Quorvane の記録ではありません</translation>
    </message>
    <message>
        <source>the kept backup is missing</source>
        <translation>保管されたバックアップがありません</translation>
    </message>
    <message>
        <source>what is kept is no plain file</source>
        <translation>保管されたものが通常のファイルではありません</translation>
    </message>
    <message>
        <source>there is no record of the original icon</source>
        <translation>元のアイコンの記録がありません</translation>
    </message>
    <message>
        <source>the kept original is missing</source>
        <translation>保管された元のファイルがありません</translation>
    </message>
    <message>
        <source>the record of the original icon is damaged</source>
        <translation>元のアイコンの記録が破損しています</translation>
    </message>
    <message>
        <source>unknown form</source>
        <translation>不明な形式です</translation>
    </message>
    <message>
        <source>a line without a value</source>
        <translation>値のない行があります</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>末尾がありません</translation>
    </message>
    <message>
        <source>nothing about %1</source>
        <translation>%1 についての記載がありません</translation>
    </message>
    <message>
        <source>what is said of %1</source>
        <translation>%1 についての記載に誤りがあります</translation>
    </message>
    <message>
        <source>the icon is too large for a resource</source>
        <translation>アイコンがリソースには大きすぎます</translation>
    </message>
    <message>
        <source>has no resource fork</source>
        <translation>リソースフォークがありません</translation>
    </message>
    <message>
        <source>there is no icon file to remove</source>
        <translation>取り除くアイコンファイルがありません</translation>
    </message>
    <message>
        <source>cannot keep the folder&apos;s Finder info</source>
        <translation>フォルダーの Finder 情報を保存できません</translation>
    </message>
    <message>
        <source>as attribute</source>
        <translation>属性として</translation>
    </message>
    <message>
        <source>as companion file %1</source>
        <translation>付属ファイル %1 として</translation>
    </message>
    <message>
        <source>no place</source>
        <translation>場所がありません</translation>
    </message>
    <message>
        <source>attribute %1</source>
        <translation>属性 %1</translation>
    </message>
    <message>
        <source>it has no Finder info</source>
        <translation>Finder 情報がありません</translation>
    </message>
    <message>
        <source>companion file</source>
        <translation>付属ファイル</translation>
    </message>
    <message>
        <source>companion file too long</source>
        <translation>付属ファイルが長すぎます</translation>
    </message>
    <message>
        <source>header cut short</source>
        <translation>ヘッダーが途中で切れています</translation>
    </message>
    <message>
        <source>wrong magic number</source>
        <translation>マジックナンバーが違います</translation>
    </message>
    <message>
        <source>unknown version</source>
        <translation>不明なバージョンです</translation>
    </message>
    <message>
        <source>too many entries</source>
        <translation>エントリーが多すぎます</translation>
    </message>
    <message>
        <source>entry table cut short</source>
        <translation>エントリーの表が途中で切れています</translation>
    </message>
    <message>
        <source>entry outside the file</source>
        <translation>エントリーがファイルの外にあります</translation>
    </message>
    <message>
        <source>entries overlap</source>
        <translation>エントリーが重なっています</translation>
    </message>
    <message>
        <source>resource fork</source>
        <translation>リソースフォーク</translation>
    </message>
    <message>
        <source>resource fork too long</source>
        <translation>リソースフォークが長すぎます</translation>
    </message>
    <message>
        <source>data or map outside the fork</source>
        <translation>データまたはマップがフォークの外にあります</translation>
    </message>
    <message>
        <source>header, data and map overlap</source>
        <translation>ヘッダー、データ、マップが重なっています</translation>
    </message>
    <message>
        <source>map cut short</source>
        <translation>マップが途中で切れています</translation>
    </message>
    <message>
        <source>type list on the map&apos;s header</source>
        <translation>タイプの一覧がマップのヘッダーと重なっています</translation>
    </message>
    <message>
        <source>type list outside the map</source>
        <translation>タイプの一覧がマップの外にあります</translation>
    </message>
    <message>
        <source>references inside the type list</source>
        <translation>参照がタイプの一覧の中にあります</translation>
    </message>
    <message>
        <source>references outside the map</source>
        <translation>参照がマップの外にあります</translation>
    </message>
    <message>
        <source>resources overlap</source>
        <translation>リソースが重なっています</translation>
    </message>
    <message>
        <source>too many resources</source>
        <translation>リソースが多すぎます</translation>
    </message>
    <message>
        <source>name outside the map</source>
        <translation>名前がマップの外にあります</translation>
    </message>
    <message>
        <source>resource outside the data</source>
        <translation>リソースがデータの外にあります</translation>
    </message>
    <message>
        <source>data out of reach</source>
        <translation>データが届く範囲にありません</translation>
    </message>
    <message>
        <source>resource too long</source>
        <translation>リソースが長すぎます</translation>
    </message>
    <message>
        <source>name too long</source>
        <translation>名前が長すぎます</translation>
    </message>
    <message>
        <source>too many names</source>
        <translation>名前が多すぎます</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>プロパティリストではありません</translation>
    </message>
    <message>
        <source>the property list is no array</source>
        <translation>プロパティリストが配列ではありません</translation>
    </message>
    <message>
        <source>a property list that is too long</source>
        <translation>プロパティリストが長すぎます</translation>
    </message>
    <message>
        <source>a property list with too many strings</source>
        <translation>プロパティリストの文字列が多すぎます</translation>
    </message>
    <message>
        <source>a property list that is nested too deep</source>
        <translation>プロパティリストの入れ子が深すぎます</translation>
    </message>
    <message>
        <source>no memory to read a property list</source>
        <translation>プロパティリストを読み取るメモリーがありません</translation>
    </message>
    <message>
        <source>its binary form is damaged</source>
        <translation>バイナリー形式が破損しています</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>途中で終わっています</translation>
    </message>
    <message>
        <source>something follows its end</source>
        <translation>末尾の後に何かが続いています</translation>
    </message>
    <message>
        <source>byte %1 is out of place</source>
        <translation>%1 バイト目が正しくありません</translation>
    </message>
    <message>
        <source>a comment has no end</source>
        <translation>コメントに終わりがありません</translation>
    </message>
    <message>
        <source>data have no end</source>
        <translation>データに終わりがありません</translation>
    </message>
    <message>
        <source>a string has no end</source>
        <translation>文字列に終わりがありません</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>実体が宣言されています</translation>
    </message>
    <message>
        <source>it refers to an entity that is not declared</source>
        <translation>宣言されていない実体を参照しています</translation>
    </message>
    <message>
        <source>its outermost element is no plist</source>
        <translation>最も外側の要素が plist ではありません</translation>
    </message>
    <message>
        <source>it has two values</source>
        <translation>値が 2 つあります</translation>
    </message>
    <message>
        <source>an element stands in a string</source>
        <translation>文字列の中に要素があります</translation>
    </message>
    <message>
        <source>the desktop session does not answer</source>
        <translation>デスクトップセッションが応答しません</translation>
    </message>
    <message>
        <source>the desktop session cannot be asked</source>
        <translation>デスクトップセッションに問い合わせできません</translation>
    </message>
    <message>
        <source>the desktop keeps no settings</source>
        <translation>デスクトップに設定が保存されません</translation>
    </message>
    <message>
        <source>the desktop did not keep the icon&apos;s name</source>
        <translation>デスクトップにアイコンの名前が保存されませんでした</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>理由は示されていません</translation>
    </message>
    <message>
        <source>the icon&apos;s name is no text</source>
        <translation>アイコンの名前がテキストではありません</translation>
    </message>
    <message>
        <source>holds something else than text</source>
        <translation>テキスト以外のものが入っています</translation>
    </message>
    <message>
        <source>cannot read settings</source>
        <translation>設定を読み取れません</translation>
    </message>
    <message>
        <source>cannot keep settings</source>
        <translation>設定を保存できません</translation>
    </message>
    <message>
        <source>cannot move aside what stands in the place of settings</source>
        <translation>設定の場所にあるものをよけられません</translation>
    </message>
    <message>
        <source>too many are kept already</source>
        <translation>すでに多くが保管されています</translation>
    </message>
    <message>
        <source>it is somebody else&apos;s link</source>
        <translation>ほかのユーザーのリンクです</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>リンク先がありません</translation>
    </message>
    <message>
        <source>the link leads to somebody else&apos;s file</source>
        <translation>リンク先がほかのユーザーのファイルです</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>ファイルは読み取り専用です</translation>
    </message>
    <message>
        <source>is longer than %1 bytes, no settings file</source>
        <translation>%1 バイトを超えています。設定ファイルではありません</translation>
    </message>
    <message>
        <source>is no settings file</source>
        <translation>設定ファイルではありません</translation>
    </message>
    <message>
        <source>the settings are longer than %1 bytes</source>
        <translation>設定が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>そのようなファイルやフォルダーはありません</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセス権がありません</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>許可されていない操作です</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>読み取り専用のファイルシステムです</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>ディスクに空き容量がありません</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>割り当てられたディスク容量を超えています</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>入出力エラーです</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>そのようなデバイスはありません</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>そのようなデバイスやアドレスはありません</translation>
    </message>
    <message>
        <source>No medium found</source>
        <translation>メディアがありません</translation>
    </message>
    <message>
        <source>Transport endpoint is not connected</source>
        <translation>接続されていません</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>ホストが停止しています</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>ホストへの経路がありません</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>サーバー上のファイルが無効になっています</translation>
    </message>
    <message>
        <source>Remote I/O error</source>
        <translation>リモート側の入出力エラーです</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>ファイル名が長すぎます</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>すでに存在します</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>フォルダーが空ではありません</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>デバイスまたはリソースが使用中です</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>プログラムファイルが使用中です</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>無効な引数です</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>ディスクをまたぐ無効なリンクです</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>シンボリックリンクの段数が多すぎます</translation>
    </message>
    <message>
        <source>Too many links</source>
        <translation>リンクが多すぎます</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>システム全体で開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>メモリーを割り当てられません</translation>
    </message>
    <message>
        <source>Operation not supported</source>
        <translation>サポートされていない操作です</translation>
    </message>
    <message>
        <source>Function not implemented</source>
        <translation>機能が実装されていません</translation>
    </message>
    <message>
        <source>Interrupted system call</source>
        <translation>システムコールが中断されました</translation>
    </message>
    <message>
        <source>Resource temporarily unavailable</source>
        <translation>リソースが一時的に使えません</translation>
    </message>
    <message>
        <source>No data available</source>
        <translation>データがありません</translation>
    </message>
    <message>
        <source>Structure needs cleaning</source>
        <translation>ファイルシステムの修復が必要です</translation>
    </message>
    <message>
        <source>Not a zip archive</source>
        <translation>zip アーカイブではありません</translation>
    </message>
    <message>
        <source>Zip archive inconsistent</source>
        <translation>zip アーカイブに矛盾があります</translation>
    </message>
    <message>
        <source>Compression method not supported</source>
        <translation>サポートされていない圧縮方式です</translation>
    </message>
    <message>
        <source>CRC error</source>
        <translation>CRC エラーです</translation>
    </message>
    <message>
        <source>Premature end of file</source>
        <translation>ファイルが途中で終わっています</translation>
    </message>
    <message>
        <source>there is no picture in the folder</source>
        <translation>フォルダーに画像がありません</translation>
    </message>
    <message>
        <source>no picture in the folder can be read</source>
        <translation>フォルダー内に読み取れる画像がありません</translation>
    </message>
    <message>
        <source>too many pictures for one set</source>
        <translation>1 つのセットには画像が多すぎます</translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation>読み戻せません</translation>
    </message>
    <message>
        <source>cannot read the set</source>
        <translation>セットを読み取れません</translation>
    </message>
    <message>
        <source>there is no home folder for a library</source>
        <translation>ライブラリーを置くホームフォルダーがありません</translation>
    </message>
    <message>
        <source>the set holds icons</source>
        <translation>セットにアイコンが入っています</translation>
    </message>
    <message>
        <source>the set&apos;s folder holds other files, and there is no trash for them</source>
        <translation>セットのフォルダーにほかのファイルがあり、それを移すゴミ箱がありません</translation>
    </message>
    <message>
        <source>%1 of the icons cannot be brought back from the trash</source>
        <translation>アイコンのうち %1 個をゴミ箱から戻せません</translation>
    </message>
    <message>
        <source>the set cannot be brought back from the trash</source>
        <translation>セットをゴミ箱から戻せません</translation>
    </message>
    <message>
        <source>no name of a set</source>
        <translation>セットの名前にできません</translation>
    </message>
    <message>
        <source>it is one of our own</source>
        <translation>Quorvane 自身が使う名前です</translation>
    </message>
    <message>
        <source>not a zip file that can be read</source>
        <translation>読み取れる zip ファイルではありません</translation>
    </message>
    <message>
        <source>an entry has no name</source>
        <translation>名前のないエントリーがあります</translation>
    </message>
    <message>
        <source>an entry has no length</source>
        <translation>長さのないエントリーがあります</translation>
    </message>
    <message>
        <source>it is longer than it says</source>
        <translation>記載より長くなっています</translation>
    </message>
    <message>
        <source>the zip file holds no icons</source>
        <translation>zip ファイルにアイコンがありません</translation>
    </message>
    <message>
        <source>the zip file holds icons in several folders</source>
        <translation>zip ファイルの複数のフォルダーにアイコンがあります</translation>
    </message>
    <message>
        <source>no picture in the zip file can be read</source>
        <translation>zip ファイル内に読み取れる画像がありません</translation>
    </message>
    <message>
        <source>the zip file names &apos;%1&apos;, which leads elsewhere</source>
        <translation>zip ファイル内の「%1」が別の場所を指しています</translation>
    </message>
    <message>
        <source>the zip file holds &apos;%1&apos;, which is no plain file</source>
        <translation>zip ファイル内の「%1」は通常のファイルではありません</translation>
    </message>
    <message>
        <source>the zip file names &apos;%1&apos; twice, or in other letters</source>
        <translation>zip ファイルに「%1」が 2 回、または大文字小文字違いで含まれています</translation>
    </message>
    <message>
        <source>the zip file has too many entries</source>
        <translation>zip ファイルのエントリーが多すぎます</translation>
    </message>
    <message>
        <source>the zip file is encrypted</source>
        <translation>zip ファイルが暗号化されています</translation>
    </message>
    <message>
        <source>the zip file unpacks to far more than its length</source>
        <translation>zip ファイルを展開すると元の長さをはるかに超えます</translation>
    </message>
    <message>
        <source>too much for one zip file</source>
        <translation>1 つの zip ファイルには多すぎます</translation>
    </message>
    <message>
        <source>cannot make a zip file</source>
        <translation>zip ファイルを作れません</translation>
    </message>
    <message>
        <source>what was made cannot be read</source>
        <translation>作成したものを読み取れません</translation>
    </message>
    <message>
        <source>there is no such look</source>
        <translation>そのプリセットはありません</translation>
    </message>
    <message>
        <source>there is a look named &apos;%1&apos; already</source>
        <translation>「%1」という名前のプリセットがすでにあります</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a look</source>
        <translation>「%1」はプリセットの名前にできません</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no text</source>
        <translation>プリセットの「%1」がテキストではありません</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no number</source>
        <translation>プリセットの「%1」が数値ではありません</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no pair of numbers</source>
        <translation>プリセットの「%1」が数値の組ではありません</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no base64 text</source>
        <translation>プリセットの「%1」が base64 テキストではありません</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no name of an effect</source>
        <translation>プリセットの「%1」がエフェクトの名前ではありません</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;overlay&quot; and &quot;overlay-picture&quot; exclude each other</source>
        <translation>プリセットの「overlay」と「overlay-picture」は同時に使えません</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;overlay-picture&quot; cannot be used</source>
        <translation>プリセットの「overlay-picture」を使えません</translation>
    </message>
    <message>
        <source>is longer than %1 bytes, no look file</source>
        <translation>%1 バイトを超えています。プリセットファイルではありません</translation>
    </message>
    <message>
        <source>is no JSON</source>
        <translation>JSON ではありません</translation>
    </message>
    <message>
        <source>is no look file</source>
        <translation>プリセットファイルではありません</translation>
    </message>
    <message>
        <source>was written by a newer version of this program</source>
        <translation>このプログラムの新しいバージョンで書かれています</translation>
    </message>
    <message>
        <source>the look&apos;s base picture &apos;%1&apos;</source>
        <translation>プリセットのベース画像「%1」</translation>
    </message>
    <message>
        <source>the name of the base picture is no text that a look can hold</source>
        <translation>ベース画像の名前はプリセットに入れられるテキストではありません</translation>
    </message>
    <message>
        <source>the look is longer than %1 bytes</source>
        <translation>プリセットが %1 バイトを超えています</translation>
    </message>
    <message>
        <source>a look refers only to pictures in its own folder or below; copy the picture there first</source>
        <translation>プリセットが参照できるのは、そのフォルダーの中の画像だけです。先に画像をそこにコピーしてください</translation>
    </message>
    <message>
        <source>the label&apos;s shadow is none of the effects that a look can hold</source>
        <translation>ラベルの影は、プリセットに入れられるエフェクトではありません</translation>
    </message>
    <message>
        <source>there is no emblem &apos;%1&apos;</source>
        <translation>エンブレム「%1」はありません</translation>
    </message>
    <message>
        <source>there is no emblem &apos;%1&apos;, did you mean &apos;%2&apos;?</source>
        <translation>エンブレム「%1」はありません。「%2」のことですか?</translation>
    </message>
    <message>
        <source>there is no effect &apos;%1&apos;; use %2</source>
        <translation>エフェクト「%1」はありません。使えるのは %2 です</translation>
    </message>
    <message>
        <source>%1 takes a number from %2 to %3, not &apos;%4&apos;</source>
        <translation>%1 には %2 から %3 までの数値が必要です (「%4」は使えません)</translation>
    </message>
    <message>
        <source>%1 takes X,Y, numbers within a million, not &apos;%2&apos;</source>
        <translation>%1 には X,Y の形で 100 万までの数値が必要です (「%2」は使えません)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no colour; use #rgb, #rrggbb, #rrggbbaa or a name</source>
        <translation>「%1」は色ではありません。#rgb、#rrggbb、#rrggbbaa または名前を使ってください</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no overlay; use emblem:NAME, emoji:X or none</source>
        <translation>「%1」はバッジではありません。emblem:NAME、emoji:X または none を使ってください</translation>
    </message>
    <message>
        <source>takes one emoji or other character</source>
        <translation>絵文字またはその他の文字を 1 つ指定してください</translation>
    </message>
    <message>
        <source>takes one emoji or other character, not &apos;%1&apos;</source>
        <translation>絵文字またはその他の文字を 1 つ指定してください (「%1」は使えません)</translation>
    </message>
    <message>
        <source>the font&apos;s name is longer than %1 bytes</source>
        <translation>フォントの名前が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>no font &apos;%1&apos; is installed</source>
        <translation>フォント「%1」はインストールされていません</translation>
    </message>
    <message>
        <source>the font &apos;%1&apos; has no style &apos;%2&apos;; it has</source>
        <translation>フォント「%1」にスタイル「%2」はありません。あるのは次のものです</translation>
    </message>
    <message>
        <source>the label is longer than %1 bytes</source>
        <translation>ラベルが %1 バイトを超えています</translation>
    </message>
    <message>
        <source>the label holds a zero byte</source>
        <translation>ラベルにゼロバイトが含まれています</translation>
    </message>
    <message>
        <source>there is no placeholder {%1} for labels, only {name}; a brace itself is written {{</source>
        <translation>ラベルにプレースホルダー {%1} はありません。使えるのは {name} だけです。かっこ自体は {{ と書きます</translation>
    </message>
    <message>
        <source>the label is not UTF-8 text</source>
        <translation>ラベルが UTF-8 のテキストではありません</translation>
    </message>
    <message>
        <source>the picture cannot be kept in so few bytes</source>
        <translation>画像をこれだけのバイト数に収められません</translation>
    </message>
    <message>
        <source>the picture is longer than %1 bytes</source>
        <translation>画像が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>the picture is no PNG file</source>
        <translation>画像が PNG ファイルではありません</translation>
    </message>
    <message>
        <source>this is no list of versions</source>
        <translation>バージョンの一覧ではありません</translation>
    </message>
    <message>
        <source>it has a document type</source>
        <translation>文書型宣言があります</translation>
    </message>
    <message>
        <source>an element has too many attributes</source>
        <translation>属性が多すぎる要素があります</translation>
    </message>
    <message>
        <source>its elements are nested too deeply</source>
        <translation>要素の入れ子が深すぎます</translation>
    </message>
    <message>
        <source>its first element is not &quot;rss&quot;</source>
        <translation>最初の要素が「rss」ではありません</translation>
    </message>
    <message>
        <source>it has too many versions</source>
        <translation>バージョンが多すぎます</translation>
    </message>
    <message>
        <source>the list is too long</source>
        <translation>一覧が長すぎます</translation>
    </message>
    <message>
        <source>not an https address</source>
        <translation>https のアドレスではありません</translation>
    </message>
    <message>
        <source>no whole answer in %1 s</source>
        <translation>%1 秒以内に応答がそろいませんでした</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%2 バイト中 %1 バイト</translation>
    </message>
    <message>
        <source>redirected to %1</source>
        <translation>%1 に転送されました</translation>
    </message>
    <message>
        <source>redirected more than %1 times</source>
        <translation>%1 回を超えて転送されました</translation>
    </message>
    <message>
        <source>the proxy in the environment is not understood</source>
        <translation>環境変数のプロキシを解釈できません</translation>
    </message>
    <message>
        <source>%1 did not end</source>
        <translation>%1 が終了しませんでした</translation>
    </message>
    <message>
        <source>%1 ended with %2</source>
        <translation>%1 が %2 で終了しました</translation>
    </message>
    <message>
        <source>it is not in UTF-8</source>
        <translation>UTF-8 ではありません</translation>
    </message>
    <message>
        <source>not an icon family</source>
        <translation>アイコンファミリーではありません</translation>
    </message>
    <message>
        <source>an icon family without a whole element</source>
        <translation>完全な要素のないアイコンファミリーです</translation>
    </message>
    <message>
        <source>the icon family holds no whole picture</source>
        <translation>アイコンファミリーに完全な画像がありません</translation>
    </message>
    <message>
        <source>icon family with too many elements</source>
        <translation>アイコンファミリーの要素が多すぎます</translation>
    </message>
    <message>
        <source>icon family element too long</source>
        <translation>アイコンファミリーの要素が長すぎます</translation>
    </message>
    <message>
        <source>icon family too long</source>
        <translation>アイコンファミリーが長すぎます</translation>
    </message>
    <message>
        <source>the image has no picture to make an icon of</source>
        <translation>アイコンにできる画像が含まれていません</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; holds neither PNG nor JPEG 2000</source>
        <translation>要素「%1」は PNG でも JPEG 2000 でもありません</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; holds neither ARGB, PNG nor JPEG 2000</source>
        <translation>要素「%1」は ARGB、PNG、JPEG 2000 のいずれでもありません</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; holds a picture of %2 x %3 pixels</source>
        <translation>要素「%1」の画像は %2 × %3 ピクセルです</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; is too short</source>
        <translation>要素「%1」が短すぎます</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; was given %2 bytes</source>
        <translation>要素「%1」に %2 バイトが渡されました</translation>
    </message>
    <message>
        <source>there is no element &apos;%1&apos;</source>
        <translation>要素「%1」がありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the type of a picture</source>
        <translation>「%1」は画像のタイプではありません</translation>
    </message>
    <message>
        <source>element pixels do not fill a bitmap</source>
        <translation>要素のピクセルが画像に足りません</translation>
    </message>
    <message>
        <source>an element form is not handled</source>
        <translation>処理できない要素の形式です</translation>
    </message>
    <message>
        <source>packed colour with too many pixels</source>
        <translation>圧縮された色のピクセルが多すぎます</translation>
    </message>
    <message>
        <source>packed colour does not unpack to its pixels</source>
        <translation>圧縮された色を展開してもピクセル数が合いません</translation>
    </message>
    <message>
        <source>packed picture with too many pixels</source>
        <translation>圧縮された画像のピクセルが多すぎます</translation>
    </message>
    <message>
        <source>packed picture does not unpack to its pixels</source>
        <translation>圧縮された画像を展開してもピクセル数が合いません</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>file is cut off</source>
        <translation>ファイルが途中で切れています</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>the file holds no picture</source>
        <translation>ファイルに画像がありません</translation>
    </message>
    <message>
        <source>not a picture that can be read</source>
        <translation>読み取れる画像ではありません</translation>
    </message>
    <message>
        <source>an icon family, not a picture</source>
        <translation>画像ではなくアイコンファミリーです</translation>
    </message>
    <message>
        <source>animations in the format MNG are not read</source>
        <translation>MNG 形式のアニメーションは読み取れません</translation>
    </message>
    <message>
        <source>compressed vector pictures are not read</source>
        <translation>圧縮されたベクター画像は読み取れません</translation>
    </message>
    <message>
        <source>vector picture defines entities</source>
        <translation>ベクター画像が実体を定義しています</translation>
    </message>
    <message>
        <source>vector picture refers to other files</source>
        <translation>ベクター画像がほかのファイルを参照しています</translation>
    </message>
    <message>
        <source>vector picture has too many parts</source>
        <translation>ベクター画像の部品が多すぎます</translation>
    </message>
    <message>
        <source>picture of %1 x %2 pixels</source>
        <translation>画像が %1 × %2 ピクセルあります</translation>
    </message>
    <message>
        <source>the picture cannot be decoded</source>
        <translation>画像をデコードできません</translation>
    </message>
    <message>
        <source>a picture without size</source>
        <translation>大きさのない画像です</translation>
    </message>
    <message>
        <source>cannot be decoded</source>
        <translation>デコードできません</translation>
    </message>
    <message>
        <source>not a PNG file</source>
        <translation>PNG ファイルではありません</translation>
    </message>
    <message>
        <source>PNG file is cut off</source>
        <translation>PNG ファイルが途中で切れています</translation>
    </message>
    <message>
        <source>PNG header is cut off</source>
        <translation>PNG のヘッダーが途中で切れています</translation>
    </message>
    <message>
        <source>PNG file does not begin with a header</source>
        <translation>PNG ファイルがヘッダーで始まっていません</translation>
    </message>
    <message>
        <source>PNG header states an impossible size</source>
        <translation>PNG のヘッダーにありえない大きさが書かれています</translation>
    </message>
    <message>
        <source>PNG header states an unknown kind of pixels</source>
        <translation>PNG のヘッダーに不明なピクセルの種類が書かれています</translation>
    </message>
    <message>
        <source>PNG file holds far more data than its pixels need</source>
        <translation>PNG ファイルにピクセルに必要な量をはるかに超えるデータがあります</translation>
    </message>
    <message>
        <source>PNG picture of %1 x %2 pixels</source>
        <translation>PNG 画像が %1 × %2 ピクセルあります</translation>
    </message>
    <message>
        <source>PNG picture is too large</source>
        <translation>PNG 画像が大きすぎます</translation>
    </message>
    <message>
        <source>unexpected layout</source>
        <translation>想定外の配置です</translation>
    </message>
    <message>
        <source>no pixels to write as PNG</source>
        <translation>PNG として書き込むピクセルがありません</translation>
    </message>
    <message>
        <source>compressing a PNG</source>
        <translation>PNG の圧縮</translation>
    </message>
    <message>
        <source>PNG pixels do not fit their bound</source>
        <translation>PNG のピクセルが上限に収まりません</translation>
    </message>
    <message>
        <source>JPEG file is cut off</source>
        <translation>JPEG ファイルが途中で切れています</translation>
    </message>
    <message>
        <source>JPEG file of more than %1 scans</source>
        <translation>JPEG ファイルのスキャンが %1 個を超えています</translation>
    </message>
    <message>
        <source>JPEG picture is too large</source>
        <translation>JPEG 画像が大きすぎます</translation>
    </message>
    <message>
        <source>not a TIFF picture of inks or with transparent greys</source>
        <translation>インクまたは透明なグレーの TIFF 画像ではありません</translation>
    </message>
    <message>
        <source>TIFF picture is damaged or cut off</source>
        <translation>TIFF 画像が破損しているか途中で切れています</translation>
    </message>
    <message>
        <source>TIFF picture has no pixels</source>
        <translation>TIFF 画像にピクセルがありません</translation>
    </message>
    <message>
        <source>not a JPEG 2000 file</source>
        <translation>JPEG 2000 ファイルではありません</translation>
    </message>
    <message>
        <source>JPEG 2000 file is cut off</source>
        <translation>JPEG 2000 ファイルが途中で切れています</translation>
    </message>
    <message>
        <source>JPEG 2000 file has a box without room for its header</source>
        <translation>JPEG 2000 ファイルにヘッダーの入らないボックスがあります</translation>
    </message>
    <message>
        <source>JPEG 2000 file has no picture</source>
        <translation>JPEG 2000 ファイルに画像がありません</translation>
    </message>
    <message>
        <source>JPEG 2000 codestream does not begin with its size</source>
        <translation>JPEG 2000 のコードストリームが大きさで始まっていません</translation>
    </message>
    <message>
        <source>JPEG 2000 codestream has an unknown marker</source>
        <translation>JPEG 2000 のコードストリームに不明なマーカーがあります</translation>
    </message>
    <message>
        <source>JPEG 2000 header does not say how it is coded</source>
        <translation>JPEG 2000 のヘッダーに符号化の方法が書かれていません</translation>
    </message>
    <message>
        <source>JPEG 2000 header states an impossible size</source>
        <translation>JPEG 2000 のヘッダーにありえない大きさが書かれています</translation>
    </message>
    <message>
        <source>JPEG 2000 header states an impossible coding</source>
        <translation>JPEG 2000 のヘッダーにありえない符号化が書かれています</translation>
    </message>
    <message>
        <source>JPEG 2000 tile states an impossible length</source>
        <translation>JPEG 2000 のタイルにありえない長さが書かれています</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has %1 components</source>
        <translation>JPEG 2000 画像の成分が %1 個あります</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has too many components</source>
        <translation>JPEG 2000 画像の成分が多すぎます</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has unusable components</source>
        <translation>JPEG 2000 画像の成分が使えません</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has components of unequal size</source>
        <translation>JPEG 2000 画像の成分の大きさがそろっていません</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has more than 16 bits a sample</source>
        <translation>JPEG 2000 画像が 1 サンプルあたり 16 ビットを超えています</translation>
    </message>
    <message>
        <source>JPEG 2000 picture is in a colour space that is not read</source>
        <translation>JPEG 2000 画像の色空間は読み取れません</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has no colour</source>
        <translation>JPEG 2000 画像に色がありません</translation>
    </message>
    <message>
        <source>JPEG 2000 picture is too large</source>
        <translation>JPEG 2000 画像が大きすぎます</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels</source>
        <translation>JPEG 2000 画像が %1 × %2 ピクセルあります</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels is of too many pixels</source>
        <translation>%1 × %2 ピクセルの JPEG 2000 画像はピクセルが多すぎます</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels is of too many tiles</source>
        <translation>%1 × %2 ピクセルの JPEG 2000 画像はタイルが多すぎます</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels is of too many code blocks</source>
        <translation>%1 × %2 ピクセルの JPEG 2000 画像はコードブロックが多すぎます</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels is of too many packets</source>
        <translation>%1 × %2 ピクセルの JPEG 2000 画像はパケットが多すぎます</translation>
    </message>
    <message>
        <source>not a layered picture (PSD)</source>
        <translation>レイヤー付きの画像 (PSD) ではありません</translation>
    </message>
    <message>
        <source>PSD file is cut off</source>
        <translation>PSD ファイルが途中で切れています</translation>
    </message>
    <message>
        <source>PSD file has no palette</source>
        <translation>PSD ファイルにパレットがありません</translation>
    </message>
    <message>
        <source>PSD picture has no pixels</source>
        <translation>PSD 画像にピクセルがありません</translation>
    </message>
    <message>
        <source>PSD pictures of separate inks are not read</source>
        <translation>インクごとに分かれた PSD 画像は読み取れません</translation>
    </message>
    <message>
        <source>PSD picture is in a colour mode that is not read</source>
        <translation>PSD 画像のカラーモードは読み取れません</translation>
    </message>
    <message>
        <source>PSD picture has %1 bits a sample in a mode without them</source>
        <translation>PSD 画像が、このモードにない 1 サンプル %1 ビットになっています</translation>
    </message>
    <message>
        <source>PSD picture has %1 channels</source>
        <translation>PSD 画像のチャンネルが %1 個あります</translation>
    </message>
    <message>
        <source>PSD picture is compressed in a way that is not read</source>
        <translation>PSD 画像の圧縮方式は読み取れません</translation>
    </message>
    <message>
        <source>PSD picture has a row that is too short</source>
        <translation>PSD 画像に短すぎる行があります</translation>
    </message>
    <message>
        <source>PSD picture is too large</source>
        <translation>PSD 画像が大きすぎます</translation>
    </message>
    <message>
        <source>Multi-disk zip archives not supported</source>
        <translation>分割された zip アーカイブはサポートされていません</translation>
    </message>
    <message>
        <source>invalid chunk type</source>
        <translation>チャンクの種類が無効です</translation>
    </message>
    <message>
        <source>bad adaptive filter value</source>
        <translation>フィルターの値が無効です</translation>
    </message>
    <message>
        <source>incorrect data check</source>
        <translation>データのチェックサムが合いません</translation>
    </message>
    <message>
        <source>invalid distance too far back</source>
        <translation>距離が無効です (さかのぼりすぎ)</translation>
    </message>
    <message>
        <source>Invalid JPEG file structure</source>
        <translation>JPEG ファイルの構造が無効です</translation>
    </message>
    <message>
        <source>missing SOS marker</source>
        <translation>SOS マーカーがありません</translation>
    </message>
    <message>
        <source>Bogus marker length</source>
        <translation>マーカーの長さが無効です</translation>
    </message>
    <message>
        <source>Bogus Huffman table definition</source>
        <translation>ハフマン表の定義が無効です</translation>
    </message>
    <message>
        <source>Unsupported marker type %1</source>
        <translation>サポートされていないマーカー %1 です</translation>
    </message>
</context>
<context>
    <name>TintBar</name>
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
        <source>Purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>グラファイト</translation>
    </message>
</context>
<context>
    <name>quorvane</name>
    <message>
        <source>Original icon</source>
        <translation>元のアイコン</translation>
    </message>
    <message>
        <source>Revert puts this icon back.</source>
        <translation>「復元」でこのアイコンに戻ります。</translation>
    </message>
    <message>
        <source>Original Icon</source>
        <translation>元のアイコン</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Type the label here</source>
        <translation>ここにラベルを入力</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>ラベル(&amp;L)</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>画像を選択</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>影</translation>
    </message>
    <message>
        <source>Soft shadow</source>
        <translation>やわらかい影</translation>
    </message>
    <message>
        <source>Medium shadow</source>
        <translation>中くらいの影</translation>
    </message>
    <message>
        <source>Sharp shadow</source>
        <translation>はっきりした影</translation>
    </message>
    <message>
        <source>Glow</source>
        <translation>光彩</translation>
    </message>
    <message>
        <source>Red glow</source>
        <translation>赤い光彩</translation>
    </message>
    <message>
        <source>Green glow</source>
        <translation>緑の光彩</translation>
    </message>
    <message>
        <source>Blue glow</source>
        <translation>青い光彩</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Fon&amp;t</source>
        <translation>フォント(&amp;T)</translation>
    </message>
    <message>
        <source>C&amp;olour</source>
        <translation>色(&amp;O)</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>サイズ(&amp;Z)</translation>
    </message>
    <message>
        <source>Line Spacin&amp;g</source>
        <translation>行間(&amp;G)</translation>
    </message>
    <message>
        <source>Effe&amp;ct</source>
        <translation>効果(&amp;C)</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>変形</translation>
    </message>
    <message>
        <source>&amp;Shear</source>
        <translation>傾斜(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Rotation</source>
        <translation>回転(&amp;R)</translation>
    </message>
    <message>
        <source>O&amp;pacity</source>
        <translation>不透明度(&amp;P)</translation>
    </message>
    <message>
        <source>Reset Transfor&amp;m</source>
        <translation>変形をリセット(&amp;M)</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>復元(&amp;V)</translation>
    </message>
    <message>
        <source>Put the icon from before the first Apply back</source>
        <translation>最初に適用する前のアイコンに戻します</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Give the folder this icon</source>
        <translation>フォルダーにこのアイコンを付けます</translation>
    </message>
    <message>
        <source>Ope&amp;n…</source>
        <translation>開く(&amp;N)…</translation>
    </message>
    <message>
        <source>Choose the folder to give an icon to</source>
        <translation>アイコンを付けるフォルダーを選びます</translation>
    </message>
    <message>
        <source>What the label looks like when Quorvane starts.</source>
        <translation>Quorvane の起動時のラベルの見た目です。</translation>
    </message>
    <message>
        <source>Default colour</source>
        <translation>デフォルトの色</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Always this &amp;colour</source>
        <translation>常にこの色(&amp;C)</translation>
    </message>
    <message>
        <source>The colour used &amp;last</source>
        <translation>最後に使った色(&amp;L)</translation>
    </message>
    <message>
        <source>C&amp;hange…</source>
        <translation>変更(&amp;H)…</translation>
    </message>
    <message>
        <source>Change the default font</source>
        <translation>デフォルトのフォントを変更</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Always this &amp;font</source>
        <translation>常にこのフォント(&amp;F)</translation>
    </message>
    <message>
        <source>The font used la&amp;st</source>
        <translation>最後に使ったフォント(&amp;S)</translation>
    </message>
    <message>
        <source>New Versions</source>
        <translation>新しいバージョン</translation>
    </message>
    <message>
        <source>Look for one when Quorvane s&amp;tarts</source>
        <translation>Quorvane の起動時に確認する(&amp;T)</translation>
    </message>
    <message>
        <source>Look &amp;Now</source>
        <translation>今すぐ確認(&amp;N)</translation>
    </message>
    <message>
        <source>Keep these preferences and look for a new version</source>
        <translation>この設定を保存して、新しいバージョンを確認します</translation>
    </message>
    <message>
        <source>Quorvane uses the network for this only, and installs nothing by itself.</source>
        <translation>Quorvane がネットワークを使うのはこの確認だけで、自動的に何かをインストールすることはありません。</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Ask me now and then to tell &amp;others about Quorvane</source>
        <translation>Quorvane をほかの人に紹介するよう、ときどき尋ねる(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>完了(&amp;D)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Default Colour</source>
        <translation>デフォルトの色</translation>
    </message>
    <message>
        <source>Default Font</source>
        <translation>デフォルトのフォント</translation>
    </message>
    <message>
        <source>Add Icon</source>
        <translation>アイコンを追加</translation>
    </message>
    <message>
        <source>Import Set</source>
        <translation>セットを読み込む</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込む</translation>
    </message>
    <message>
        <source>Exported sets (*.zip)</source>
        <translation>書き出されたセット (*.zip)</translation>
    </message>
    <message>
        <source>Export Set</source>
        <translation>セットを書き出す</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出す</translation>
    </message>
    <message>
        <source>Replace “%1”?</source>
        <translation>「%1」を置き換えますか?</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>同じ名前のファイルがすでにあります。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
</context>
<context>
    <name>quorvane::AboutController</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Gives folders icons of their own, with a label.</source>
        <translation>フォルダーにラベル付きの専用アイコンを付けます。</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>ライブラリー</translation>
    </message>
    <message>
        <source>About Quorvane</source>
        <translation>Quorvane について</translation>
    </message>
    <message>
        <source>&amp;Home Page</source>
        <translation>ホームページ(&amp;H)</translation>
    </message>
    <message>
        <source>C&amp;omments</source>
        <translation>ご意見(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Write to Us</source>
        <translation>お問い合わせ(&amp;W)</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>You may use, study, change and pass on Quorvane under the GNU General Public License, version 3 or any later version. It comes without any warranty. Its own pictures are in the public domain (CC0 1.0).</source>
        <translation>Quorvane は GNU General Public License バージョン 3 またはそれ以降のバージョンに従って、使用、調査、変更、再配布できます。いかなる保証もありません。付属の画像はパブリックドメイン (CC0 1.0) です。</translation>
    </message>
    <message>
        <source>&amp;Licence Text…</source>
        <translation>ライセンス全文(&amp;L)…</translation>
    </message>
    <message>
        <source>Built on</source>
        <translation>使用しているライブラリー</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Text of the licence</source>
        <translation>ライセンスの本文</translation>
    </message>
    <message>
        <source>The program&apos;s icon</source>
        <translation>プログラムのアイコン</translation>
    </message>
</context>
<context>
    <name>quorvane::AlertPanel</name>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>quorvane::AppController</name>
    <message>
        <source>%@ %.0f</source>
        <translation>%@ %.0f</translation>
    </message>
    <message>
        <source>Reading the picture…</source>
        <translation>画像を読み込んでいます…</translation>
    </message>
    <message>
        <source>“%1” cannot be used: %2</source>
        <translation>「%1」は使えません: %2</translation>
    </message>
    <message>
        <source>Looking at the folder…</source>
        <translation>フォルダーを調べています…</translation>
    </message>
    <message>
        <source>“%1” is no folder.</source>
        <translation>「%1」はフォルダーではありません。</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: only folders on this computer can.</source>
        <translation>「%1」は開けません。開けるのはこのコンピューター上のフォルダーだけです。</translation>
    </message>
    <message>
        <source>– %1</source>
        <translation>– %1</translation>
    </message>
    <message>
        <source>The folder cannot be looked at: %1</source>
        <translation>フォルダーを調べられません: %1</translation>
    </message>
    <message>
        <source>Applying the icon…</source>
        <translation>アイコンを適用しています…</translation>
    </message>
    <message>
        <source>Unable to Set Icon</source>
        <translation>アイコンを設定できません</translation>
    </message>
    <message>
        <source>The folder appears to be locked and cannot be modified.  Please unlock the folder and try again.

Use the Finder&apos;s Get Info on the folder and uncheck the &apos;Locked&apos; checkbox.</source>
        <translation>フォルダーがロックされていて変更できないようです。ロックを解除して、もう一度お試しください。

Finder でフォルダーの「情報を見る」を開き、「ロック」のチェックを外してください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Putting the former icon back…</source>
        <translation>以前のアイコンに戻しています…</translation>
    </message>
    <message>
        <source>First thing first</source>
        <translation>はじめに</translation>
    </message>
    <message>
        <source>Please drop the folder you wish to &quot;brand&quot; in the folder well.  You can also choose a folder by selecting Open in the File menu.</source>
        <translation>アイコンを付けたいフォルダーを、フォルダーの枠にドロップしてください。「ファイル」メニューの「開く」でフォルダーを選ぶこともできます。</translation>
    </message>
    <message>
        <source>Important Dock Tip</source>
        <translation>Dock についての大切なヒント</translation>
    </message>
    <message>
        <source>Congratulations!  You&apos;ve just branded your first folder.

On Mac OS X 10.5 and later, a folder is shown in the Dock as a Stack by default.  In order to see the folder icon you&apos;ve just made, ctrl-click on it in the Dock to get the contextual menu.  Then select Folder under the &apos;Display as&apos; option.</source>
        <translation>おめでとうございます。最初のフォルダーにアイコンが付きました。

Mac OS X 10.5 以降では、Dock のフォルダーは通常スタックとして表示されます。作成したフォルダーアイコンを表示するには、Dock でフォルダーを Control キーを押しながらクリックし、コンテキストメニューの「表示形式」で「フォルダ」を選んでください。</translation>
    </message>
    <message>
        <source>More Information</source>
        <translation>詳しい情報</translation>
    </message>
    <message>
        <source>Maybe next time</source>
        <translation>また今度</translation>
    </message>
    <message>
        <source>Don&apos;t ask again</source>
        <translation>今後は尋ねない</translation>
    </message>
    <message>
        <source>Share on Facebook</source>
        <translation>Facebook でシェア</translation>
    </message>
    <message>
        <source>As an independent developer, our single greatest challenge is getting the word out.  Please consider taking a minute to share %@ on your Facebook and help spread the word.

Thank you!</source>
        <translation>独立系の開発者にとって一番難しいのは、知ってもらうことです。お時間があれば、Facebook で %@ をシェアして広めるのにご協力ください。

ありがとうございます。</translation>
    </message>
    <message>
        <source>We Need Your Help!</source>
        <translation>ご協力をお願いします</translation>
    </message>
    <message>
        <source>As an indie developer, our biggest challenge is getting the word out.  Please take a minute to rate %@ on the App Store and help spread the word.

Thank you!</source>
        <translation>インディー開発者にとって一番難しいのは、知ってもらうことです。お時間があれば、App Store で %@ を評価して広めるのにご協力ください。

ありがとうございます。</translation>
    </message>
    <message>
        <source>Rate %@</source>
        <translation>%@ を評価</translation>
    </message>
    <message>
        <source>No Saved Looks</source>
        <translation>保存されたプリセットはありません</translation>
    </message>
    <message>
        <source>The look cannot be saved: %1</source>
        <translation>プリセットを保存できません: %1</translation>
    </message>
    <message>
        <source>The look “%1” was saved.</source>
        <translation>プリセット「%1」を保存しました。</translation>
    </message>
    <message>
        <source>The look cannot be used: %1</source>
        <translation>プリセットを使えません: %1</translation>
    </message>
    <message>
        <source>The clipboard holds no path of a folder.</source>
        <translation>クリップボードにフォルダーのパスがありません。</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (見つかりません)</translation>
    </message>
    <message>
        <source>The folder is not there any more.</source>
        <translation>フォルダーが見つからなくなりました。</translation>
    </message>
    <message>
        <source>No Recent Folders</source>
        <translation>最近使ったフォルダーはありません</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>リストを消去(&amp;C)</translation>
    </message>
    <message>
        <source>Open a folder: the label is drawn on this picture then.</source>
        <translation>フォルダーを開くと、この画像の上にラベルが描かれます。</translation>
    </message>
    <message>
        <source>No program was found that opens web pages.</source>
        <translation>ウェブページを開くプログラムが見つかりません。</translation>
    </message>
    <message>
        <source>No program was found that writes mail.</source>
        <translation>メールを書くプログラムが見つかりません。</translation>
    </message>
    <message>
        <source>The settings cannot be kept: %1</source>
        <translation>設定を保存できません: %1</translation>
    </message>
    <message>
        <source>“%1” Is Missing</source>
        <translation>“%1”が見つかりません</translation>
    </message>
    <message>
        <source>The folder is not there any more, or the disk that it lies on is away:

%1</source>
        <translation>フォルダーがなくなったか、フォルダーのあるディスクが接続されていません:

%1</translation>
    </message>
    <message>
        <source>Keep in List</source>
        <translation>リストに残す</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>リストから削除</translation>
    </message>
</context>
<context>
    <name>quorvane::AppcastUpdater</name>
    <message>
        <source>Could Not Look for a New Version</source>
        <translation>新しいバージョンを確認できませんでした</translation>
    </message>
    <message>
        <source>What the server sent is no list of versions.</source>
        <translation>サーバーから届いたものはバージョンの一覧ではありません。</translation>
    </message>
    <message>
        <source>The address at which new versions are announced is not a safe one. It has to begin with https.</source>
        <translation>新しいバージョンを知らせるアドレスが安全ではありません。https で始まる必要があります。</translation>
    </message>
    <message>
        <source>The server cannot be reached. See whether this computer is connected to the Internet.</source>
        <translation>サーバーに接続できません。このコンピューターがインターネットに接続されているか確認してください。</translation>
    </message>
    <message>
        <source>There is no safe connection to the server: it may be another one that answers in its place. A wrong date on this computer can be the cause, too.</source>
        <translation>サーバーに安全に接続できません。別のサーバーが代わりに応答している可能性があります。このコンピューターの日付が間違っていることが原因の場合もあります。</translation>
    </message>
    <message>
        <source>The server has no list of versions at this address.</source>
        <translation>このアドレスにはバージョンの一覧がありません。</translation>
    </message>
    <message>
        <source>The server cannot answer at present. Try again later.</source>
        <translation>サーバーは現在応答できません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The server takes too long to answer. Try again later.</source>
        <translation>サーバーの応答に時間がかかりすぎています。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>What the server sent is too long for a list of versions.</source>
        <translation>サーバーから届いたものは、バージョンの一覧としては長すぎます。</translation>
    </message>
    <message>
        <source>The server sends us on to an address that is not safe, or on and on.</source>
        <translation>サーバーが安全でないアドレスに転送しているか、転送を繰り返しています。</translation>
    </message>
    <message>
        <source>A part of the program that is needed for it is missing or does not work.</source>
        <translation>必要なプログラムの一部が見つからないか、動作していません。</translation>
    </message>
    <message>
        <source>The list of versions names none that can be compared with this one.</source>
        <translation>一覧に、このバージョンと比較できるものがありません。</translation>
    </message>
    <message>
        <source>You Have the Newest Version</source>
        <translation>最新バージョンです</translation>
    </message>
    <message>
        <source>Quorvane %1 is the newest version there is.</source>
        <translation>Quorvane %1 は最新バージョンです。</translation>
    </message>
    <message>
        <source>Could Not Open the Page</source>
        <translation>ページを開けませんでした</translation>
    </message>
    <message>
        <source>No program was found that opens web pages.</source>
        <translation>ウェブページを開くプログラムが見つかりません。</translation>
    </message>
</context>
<context>
    <name>quorvane::BaseColumn</name>
    <message>
        <source>Choose Pict&amp;ure…</source>
        <translation>画像を選択(&amp;U)…</translation>
    </message>
    <message>
        <source>Base Picture</source>
        <translation>ベース画像</translation>
    </message>
    <message>
        <source>Base picture</source>
        <translation>ベース画像</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>選択した画像</translation>
    </message>
    <message>
        <source>The folder’s own icon</source>
        <translation>フォルダー自身のアイコン</translation>
    </message>
    <message>
        <source>The label is drawn on this picture.</source>
        <translation>ラベルはこの画像の上に描かれます。</translation>
    </message>
    <message>
        <source>The label is drawn on it. To draw on something else, choose a picture or drop one here.</source>
        <translation>ラベルはこの上に描かれます。ほかのものに描くには、画像を選ぶか、ここにドロップしてください。</translation>
    </message>
    <message>
        <source>Any picture file, also one that is in no set</source>
        <translation>セットに入っていないものも含め、あらゆる画像ファイル</translation>
    </message>
    <message>
        <source>Use Folder’s Icon</source>
        <translation>フォルダーのアイコンを使う</translation>
    </message>
</context>
<context>
    <name>quorvane::BaseIconController</name>
    <message>
        <source>Remove Selected Icon</source>
        <translation>選択したアイコンを取り除く</translation>
    </message>
    <message>
        <source>Remove Selected Icons</source>
        <translation>選択したアイコンを取り除く</translation>
    </message>
    <message>
        <source>Not all of it could be taken back: %1</source>
        <translation>すべてを元に戻すことはできませんでした: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo Remove Icons</source>
        <translation>アイコンの取り除きを元に戻す</translation>
    </message>
    <message>
        <source>Undo Add Icons</source>
        <translation>アイコンの追加を元に戻す</translation>
    </message>
    <message>
        <source>Undo Move Icons</source>
        <translation>アイコンの移動を元に戻す</translation>
    </message>
    <message>
        <source>Undo Reorder Icons</source>
        <translation>アイコンの並べ替えを元に戻す</translation>
    </message>
    <message>
        <source>Undo Rename Set</source>
        <translation>セットの名前変更を元に戻す</translation>
    </message>
    <message>
        <source>Undo Remove Set</source>
        <translation>セットの取り除きを元に戻す</translation>
    </message>
    <message>
        <source>Undo New Set</source>
        <translation>セットの新規作成を元に戻す</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>The built-in icons stay as they are. Add pictures to a set of My Icons.</source>
        <translation>付属のアイコンは変更できません。「マイアイコン」のセットに画像を追加してください。</translation>
    </message>
    <message>
        <source>Select one set to add icons to.</source>
        <translation>アイコンを追加するセットを 1 つ選択してください。</translation>
    </message>
</context>
<context>
    <name>quorvane::BusyIndicator</name>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>quorvane::ColorPanel</name>
    <message>
        <source>Colours</source>
        <translation>カラー</translation>
    </message>
</context>
<context>
    <name>quorvane::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>quorvane::FolderView</name>
    <message>
        <source>Drag a folder from the Finder and drop it here.</source>
        <translation>Finder からフォルダーをドラッグして、ここにドロップしてください。</translation>
    </message>
    <message>
        <source>Hold down mouse button and drag to reposition text.</source>
        <translation>マウスボタンを押したままドラッグすると、テキストの位置を変えられます。</translation>
    </message>
    <message>
        <source>no label</source>
        <translation>ラベルなし</translation>
    </message>
    <message>
        <source>label “%label”, %x from the left and %y from the bottom of %side</source>
        <translation>ラベル「%label」、左から %x、下から %y (全体 %side)</translation>
    </message>
    <message>
        <source>Folder icon, no folder</source>
        <translation>フォルダーアイコン、フォルダーなし</translation>
    </message>
    <message>
        <source>Icon of %1</source>
        <translation>%1 のアイコン</translation>
    </message>
    <message>
        <source>Drop a folder here</source>
        <translation>ここにフォルダーをドロップ</translation>
    </message>
    <message>
        <source>This folder can only be moved from where it is, not opened.</source>
        <translation>このフォルダーは移動しかできず、開くことはできません。</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>, overlay “%what” selected, %x from the left and %y from the bottom</source>
        <translation>、バッジ「%what」を選択中、左から %x、下から %y</translation>
    </message>
    <message>
        <source>, overlay “%what”, %x from the left and %y from the bottom</source>
        <translation>、バッジ「%what」、左から %x、下から %y</translation>
    </message>
</context>
<context>
    <name>quorvane::FontPanel</name>
    <message>
        <source>Fonts</source>
        <translation>フォント</translation>
    </message>
</context>
<context>
    <name>quorvane::HVWindow</name>
    <message>
        <source>Okay</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>quorvane::IconAdder</name>
    <message>
        <source>“%1” cannot be added: %2</source>
        <translation>「%1」を追加できません: %2</translation>
    </message>
    <message>
        <source>Adding an icon…</source>
        <translation>アイコンを追加しています…</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n icons…</source>
        <translation>
            <numerusform>%n 個のアイコンを追加しています…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files cannot be added.</source>
        <translation>
            <numerusform>%n 個のファイルを追加できません。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quorvane::IconArrayController</name>
    <message>
        <source>The order of the icons cannot be kept: %1</source>
        <translation>アイコンの並び順を保存できません: %1</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected icon?</source>
        <translation>選択したアイコンを削除してもよろしいですか?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the %d selected icons?</source>
        <translation>選択した %d 個のアイコンを削除してもよろしいですか?</translation>
    </message>
    <message>
        <source>You cannot undo this action.</source>
        <translation>この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>quorvane::IconPreview</name>
    <message>
        <source>Preview of the chosen file</source>
        <translation>選択したファイルのプレビュー</translation>
    </message>
    <message>
        <source>Choose a picture, an icon file or a folder.</source>
        <translation>画像、アイコンファイル、フォルダーのいずれかを選んでください。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>No picture can be had of it.</source>
        <translation>画像を取り出せません。</translation>
    </message>
    <message>
        <source>The icon that the desktop shows for it.</source>
        <translation>デスクトップが表示するアイコンです。</translation>
    </message>
    <message>
        <source>Holds these sizes in pixels: %1</source>
        <translation>含まれるサイズ (ピクセル): %1</translation>
    </message>
</context>
<context>
    <name>quorvane::IconSetArrayController</name>
    <message>
        <source>No set can be made in the library’s folder.</source>
        <translation>ライブラリーのフォルダーにセットを作れません。</translation>
    </message>
    <message>
        <source>The set cannot be called “%1”: %2</source>
        <translation>セットの名前を「%1」にできません: %2</translation>
    </message>
    <message>
        <source>Icon Set &apos;%@&apos; Not Empty</source>
        <translation>アイコンセット「%@」は空ではありません</translation>
    </message>
    <message>
        <source>Please move icons to another set (or delete them) before removing this icon set.</source>
        <translation>このアイコンセットを取り除く前に、アイコンを別のセットに移動するか削除してください。</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2</source>
        <translation>「%1」を取り除けません: %2</translation>
    </message>
    <message>
        <source>Making a set of “%1”…</source>
        <translation>「%1」からセットを作成しています…</translation>
    </message>
    <message>
        <source>No set can be made of “%1”: %2</source>
        <translation>「%1」からセットを作れません: %2</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>「%1」を書き出しています…</translation>
    </message>
    <message>
        <source>“%1” cannot be exported: %2</source>
        <translation>「%1」を書き出せません: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be moved: %2</source>
        <translation>「%1」を移動できません: %2</translation>
    </message>
    <message>
        <source>Only folders of pictures and exported sets can be dropped on the list of sets.</source>
        <translation>セットの一覧にドロップできるのは、画像の入ったフォルダーと書き出されたセットだけです。</translation>
    </message>
</context>
<context>
    <name>quorvane::LibraryFinds</name>
    <message>
        <source>%1, built-in, in %2</source>
        <translation>%1 (付属、%2)</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>quorvane::LibraryPage</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>quorvane::LibrarySearch</name>
    <message>
        <source>Icons found</source>
        <translation>見つかったアイコン</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>No icon and no set is called “%1”.</source>
        <translation>「%1」という名前のアイコンもセットもありません。</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>検索をクリア</translation>
    </message>
</context>
<context>
    <name>quorvane::LibraryView</name>
    <message>
        <source>&amp;Built-in</source>
        <translation>付属(&amp;B)</translation>
    </message>
    <message>
        <source>My &amp;Icons</source>
        <translation>マイアイコン(&amp;I)</translation>
    </message>
    <message>
        <source>The icons that come with the program</source>
        <translation>プログラムに付属するアイコン</translation>
    </message>
    <message>
        <source>Sets of your own</source>
        <translation>自分のセット</translation>
    </message>
    <message>
        <source>Search Icons</source>
        <translation>アイコンを検索</translation>
    </message>
    <message>
        <source>Search icons</source>
        <translation>アイコンを検索</translation>
    </message>
    <message>
        <source>Finds icons of both libraries by their name or their set’s</source>
        <translation>アイコンまたはセットの名前で、両方のライブラリーのアイコンを探します</translation>
    </message>
    <message>
        <source>Size of the icons</source>
        <translation>アイコンのサイズ</translation>
    </message>
    <message>
        <source>Built-in sets</source>
        <translation>付属のセット</translation>
    </message>
    <message>
        <source>Built-in Icons</source>
        <translation>付属のアイコン</translation>
    </message>
    <message>
        <source>My sets</source>
        <translation>マイセット</translation>
    </message>
    <message>
        <source>My Icons</source>
        <translation>マイアイコン</translation>
    </message>
    <message>
        <source>New Set</source>
        <translation>新しいセット</translation>
    </message>
    <message>
        <source>Remove Set</source>
        <translation>セットを取り除く</translation>
    </message>
    <message>
        <source>Add Icon…</source>
        <translation>アイコンを追加…</translation>
    </message>
    <message>
        <source>Remove Selected Icons</source>
        <translation>選択したアイコンを取り除く</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop; what is done stays</source>
        <translation>中止します (済んだ分は残ります)</translation>
    </message>
    <message>
        <source>&amp;New Set</source>
        <translation>新しいセット(&amp;N)</translation>
    </message>
    <message>
        <source>Rena&amp;me Set</source>
        <translation>セットの名前を変更(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Remove Set</source>
        <translation>セットを取り除く(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Import Set…</source>
        <translation>セットを読み込む(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export Set…</source>
        <translation>セットを書き出す(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Add Icon…</source>
        <translation>アイコンを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Remove Selected Icon</source>
        <translation>選択したアイコンを取り除く</translation>
    </message>
    <message>
        <source>&amp;Find Icon</source>
        <translation>アイコンを検索(&amp;F)</translation>
    </message>
    <message>
        <source>No built-in icons</source>
        <translation>付属のアイコンがありません</translation>
    </message>
    <message>
        <source>They are not installed. Sets of your own can be made under My Icons.</source>
        <translation>インストールされていません。「マイアイコン」で自分のセットを作れます。</translation>
    </message>
    <message>
        <source>Show My Icons</source>
        <translation>マイアイコンを表示</translation>
    </message>
    <message numerus="yes">
        <source>%n sets are selected</source>
        <translation>
            <numerusform>%n 個のセットを選択中</numerusform>
        </translation>
    </message>
    <message>
        <source>Select one to see its icons.</source>
        <translation>アイコンを見るには 1 つ選択してください。</translation>
    </message>
    <message>
        <source>No sets</source>
        <translation>セットがありません</translation>
    </message>
    <message>
        <source>The folder of your icons cannot be written.</source>
        <translation>マイアイコンのフォルダーに書き込めません。</translation>
    </message>
    <message>
        <source>No icons in this set</source>
        <translation>このセットにアイコンはありません</translation>
    </message>
    <message>
        <source>Drop pictures, icon files or folders here.</source>
        <translation>ここに画像、アイコンファイル、フォルダーをドロップしてください。</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>追加…</translation>
    </message>
</context>
<context>
    <name>quorvane::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open Re&amp;cent</source>
        <translation>最近使ったフォルダー(&amp;C)</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>ファイルマネージャーで表示(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>C&amp;lose Folder</source>
        <translation>フォルダーを閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Paste &amp;Folder Path</source>
        <translation>フォルダーのパスを貼り付け(&amp;F)</translation>
    </message>
    <message>
        <source>C&amp;entre Label</source>
        <translation>ラベルを中央に配置(&amp;E)</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>環境設定(&amp;N)…</translation>
    </message>
    <message>
        <source>St&amp;yle</source>
        <translation>スタイル(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>フォント(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Colour…</source>
        <translation>色(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Reset Transform</source>
        <translation>変形をリセット(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>プリセット(&amp;L)</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>表示(&amp;W)</translation>
    </message>
    <message>
        <source>Canvas &amp;1×</source>
        <translation>キャンバス &amp;1×</translation>
    </message>
    <message>
        <source>Canvas &amp;2×</source>
        <translation>キャンバス &amp;2×</translation>
    </message>
    <message>
        <source>Canvas &amp;3×</source>
        <translation>キャンバス &amp;3×</translation>
    </message>
    <message>
        <source>&amp;Original Icon</source>
        <translation>元のアイコン(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Quorvane &amp;Help</source>
        <translation>Quorvane ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>Frequently Asked &amp;Questions</source>
        <translation>よくある質問(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Forum</source>
        <translation>フォーラム(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Blog</source>
        <translation>ブログ(&amp;B)</translation>
    </message>
    <message>
        <source>Home &amp;Page</source>
        <translation>ホームページ(&amp;P)</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>アップデートを確認(&amp;U)…</translation>
    </message>
    <message>
        <source>&amp;About Quorvane</source>
        <translation>Quorvane について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Save Look…</source>
        <translation>プリセットを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Manage Looks…</source>
        <translation>プリセットを管理(&amp;M)…</translation>
    </message>
    <message>
        <source>Icon Li&amp;brary</source>
        <translation>アイコンライブラリー(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Find Icon</source>
        <translation>アイコンを検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Add Icon…</source>
        <translation>アイコンを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Remove Selected Icon</source>
        <translation>選択したアイコンを取り除く</translation>
    </message>
    <message>
        <source>&amp;New Set</source>
        <translation>新しいセット(&amp;N)</translation>
    </message>
    <message>
        <source>Rena&amp;me Set</source>
        <translation>セットの名前を変更(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Remove Set</source>
        <translation>セットを取り除く(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Import Set…</source>
        <translation>セットを読み込む(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export Set…</source>
        <translation>セットを書き出す(&amp;E)…</translation>
    </message>
</context>
<context>
    <name>quorvane::ManageLooksSheet</name>
    <message>
        <source>Re&amp;name</source>
        <translation>名前を変更(&amp;N)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>取り除く(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>元に戻す(&amp;P)</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Saved looks</source>
        <translation>保存されたプリセット</translation>
    </message>
    <message>
        <source>No looks have been saved yet. Save Look keeps the present one.</source>
        <translation>プリセットはまだ保存されていません。「プリセットを保存」で現在の見た目を保存できます。</translation>
    </message>
    <message>
        <source>“%1” was removed.</source>
        <translation>「%1」を取り除きました。</translation>
    </message>
</context>
<context>
    <name>quorvane::NoticeLabel</name>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
</context>
<context>
    <name>quorvane::OverlayGroup</name>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>バッジ</translation>
    </message>
    <message>
        <source>Remove Overlay</source>
        <translation>バッジを取り除く</translation>
    </message>
    <message>
        <source>Overlay Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Overlay Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>A shade of the picture’s own colour</source>
        <translation>画像自身の色に合わせた濃淡</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Overlay colour</source>
        <translation>バッジの色</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
</context>
<context>
    <name>quorvane::OverlayPopup</name>
    <message>
        <source>Choose an overlay</source>
        <translation>バッジを選択</translation>
    </message>
    <message>
        <source>Search emblems</source>
        <translation>エンブレムを検索</translation>
    </message>
    <message>
        <source>Emblems</source>
        <translation>エンブレム</translation>
    </message>
    <message>
        <source>Emoji or letter</source>
        <translation>絵文字または文字</translation>
    </message>
    <message>
        <source>Picture File…</source>
        <translation>画像ファイル…</translation>
    </message>
</context>
<context>
    <name>quorvane::PreferenceController</name>
    <message>
        <source>%@ %.0f</source>
        <translation>%@ %.0f</translation>
    </message>
</context>
<context>
    <name>quorvane::PreviewStrip</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>The label is too small to be read at 48 pixels and hardly stands out from the picture.</source>
        <translation>ラベルが 48 ピクセルでは小さくて読めず、画像の上で目立ちません。</translation>
    </message>
    <message>
        <source>The label is too small to be read at 48 pixels.</source>
        <translation>ラベルが 48 ピクセルでは小さくて読めません。</translation>
    </message>
    <message>
        <source>The label hardly stands out from the picture.</source>
        <translation>ラベルが画像の上で目立ちません。</translation>
    </message>
    <message>
        <source>%1 × %1 pixels</source>
        <translation>%1 × %1 ピクセル</translation>
    </message>
</context>
<context>
    <name>quorvane::SaveLookSheet</name>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save Look</source>
        <translation>プリセットを保存</translation>
    </message>
    <message>
        <source>&amp;Name of the look</source>
        <translation>プリセットの名前(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Name of the look</source>
        <translation>プリセットの名前</translation>
    </message>
    <message>
        <source>Font, colour, effect, spacing, transform and place of the label are kept, and the chosen picture, tint and overlay.</source>
        <translation>ラベルのフォント、色、効果、行間、変形、位置と、選択した画像、色合い、バッジが保存されます。</translation>
    </message>
    <message>
        <source>This cannot be a name: %1</source>
        <translation>名前として使えません: %1</translation>
    </message>
    <message>
        <source>A look of this name is there already; it will be replaced.</source>
        <translation>同じ名前のプリセットがすでにあります。置き換えられます。</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutsSheet</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>キャンバス</translation>
    </message>
    <message>
        <source>Move the label by 1</source>
        <translation>ラベルを 1 ずつ移動</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>矢印キー</translation>
    </message>
    <message>
        <source>Move the label by 10</source>
        <translation>ラベルを 10 ずつ移動</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Shift+矢印キー</translation>
    </message>
    <message>
        <source>Centre the label</source>
        <translation>ラベルを中央に配置</translation>
    </message>
    <message>
        <source>Put the label back while it is dragged</source>
        <translation>ドラッグ中のラベルを元の位置に戻す</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Open the menus</source>
        <translation>メニューを開く</translation>
    </message>
    <message>
        <source>Move the overlay instead, or the label again</source>
        <translation>代わりにバッジを移動、または再びラベルを移動</translation>
    </message>
</context>
<context>
    <name>quorvane::Slider</name>
    <message>
        <source>Type a number; a double click on the slider puts the usual value back</source>
        <translation>数値を入力してください。スライダーをダブルクリックすると標準の値に戻ります</translation>
    </message>
</context>
<context>
    <name>quorvane::TintBar</name>
    <message>
        <source>No Tint</source>
        <translation>色合いなし</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>色合い</translation>
    </message>
    <message>
        <source>Other tint</source>
        <translation>ほかの色合い</translation>
    </message>
</context>
<context>
    <name>quorvane::UpdateSheet</name>
    <message>
        <source>Quorvane %1 Is Available</source>
        <translation>Quorvane %1 が利用できます</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>現在のバージョンは %1 です。</translation>
    </message>
    <message>
        <source>What Is New</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>No page is named from which it can be downloaded.</source>
        <translation>ダウンロードできるページが示されていません。</translation>
    </message>
    <message>
        <source>The page at %1 opens in your browser. Nothing is downloaded or installed without you.</source>
        <translation>%1 のページがブラウザーで開きます。自動的にダウンロードやインストールが行われることはありません。</translation>
    </message>
    <message>
        <source>&amp;Open Download Page</source>
        <translation>ダウンロードページを開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>このバージョンをスキップ(&amp;S)</translation>
    </message>
    <message>
        <source>The new one came out on %1.</source>
        <translation>新しいバージョンは %1 に公開されました。</translation>
    </message>
</context>
</TS>
